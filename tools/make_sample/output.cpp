#include "output.h"

#include <stdexcept>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>

namespace sample {

namespace {

constexpr int DotsPerMetre = 3780;

QImage prepared(const QImage& image, const QByteArray& format) {
  QImage copy = format == "png" ? image : image.convertToFormat(QImage::Format_RGB32);
  copy.setDotsPerMeterX(DotsPerMetre);
  copy.setDotsPerMeterY(DotsPerMetre);
  return copy;
}

}  // namespace

void Output::write(const std::string& path, const QByteArray& bytes) const {
  const QString target = folder_ + u'/' + QString::fromStdString(path);
  QFile file(target);
  if (!QDir().mkpath(QFileInfo(target).path()) || !file.open(QIODevice::WriteOnly) ||
      file.write(bytes) != bytes.size() || !file.flush()) {
    throw std::runtime_error("can't write " + target.toStdString());
  }
}

void Output::writeLines(const std::string& path, const std::string& text) const {
  write(path, QByteArray::fromStdString(text).replace("\n", "\r\n"));
}

void Output::writePicture(const std::string& path, const QImage& image, int quality) const {
  const std::string ending = path.substr(path.rfind('.') + 1);
  write(path, encodePicture(image, ending.c_str(), quality));
}

QByteArray encodePicture(const QImage& image, const char* format, int quality) {
  QBuffer buffer;
  QImageWriter writer(&buffer, format);
  writer.setQuality(quality);
  if (!writer.write(prepared(image, format))) throw std::runtime_error(writer.errorString().toStdString());
  return buffer.data();
}

}  // namespace sample
