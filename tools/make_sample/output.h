#pragma once

#include <string>
#include <utility>

#include <QByteArray>
#include <QImage>
#include <QString>

namespace sample {

/// Writes files below one folder, which it makes as needed. Any failure is a std::runtime_error.
class Output {
 public:
  explicit Output(QString folder) : folder_(std::move(folder)) {}

  void write(const std::string& path, const QByteArray& bytes) const;

  /// The text with CR LF in place of its LF line ends.
  void writeLines(const std::string& path, const std::string& text) const;

  /// The picture in the format that the path's ending names: bmp, jpg or png.
  void writePicture(const std::string& path, const QImage& image, int quality = -1) const;

 private:
  QString folder_;
};

/// The picture as a file of the format, such as "png".
QByteArray encodePicture(const QImage& image, const char* format, int quality = -1);

}  // namespace sample
