#pragma once

#include <optional>

#include <QByteArrayView>

namespace platform {

/// Iterates over the lines of a text in memory. A line ends in CR LF, LF or CR, or at the end of the text.
class TextLines {
 public:
  explicit TextLines(QByteArrayView bytes) : rest_(bytes) {}
  /// The next line without its line end, or none after the last one. It refers to the text's bytes.
  std::optional<QByteArrayView> next();

 private:
  QByteArrayView rest_;
};

}  // namespace platform
