#include "platform/text_lines.h"

#include <algorithm>

#include "platform/ini_lines.h"

namespace platform {

std::optional<QByteArrayView> TextLines::next() {
  if (rest_.isEmpty()) return std::nullopt;
  const auto end = std::find_if(rest_.begin(), rest_.end(), ini::isLineEnd);
  const QByteArrayView line = rest_.first(end - rest_.begin());
  rest_ = rest_.sliced(line.size());
  if (rest_.startsWith("\r\n")) {
    rest_ = rest_.sliced(2);
  } else if (!rest_.isEmpty()) {
    rest_ = rest_.sliced(1);
  }
  return line;
}

}  // namespace platform
