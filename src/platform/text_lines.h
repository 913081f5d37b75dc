#pragma once

#include <optional>

#include <QByteArrayView>

namespace platform {

/// Walks the lines of a text file held in memory; a line ends in CR LF, LF or CR, and at the end of the file.
class TextLines {
 public:
  explicit TextLines(QByteArrayView bytes) : rest_(bytes) {}
  /// The next line without its end; none behind the last one. Its bytes are those of the file.
  std::optional<QByteArrayView> next();

 private:
  QByteArrayView rest_;
};

}  // namespace platform
