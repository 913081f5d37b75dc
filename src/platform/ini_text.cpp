#include "platform/ini_text.h"

#include "platform/text_lines.h"

namespace platform {

const std::vector<QByteArrayView>& IniText::lines() const {
  if (!lines_) {
    TextLines walk(bytes_);
    lines_.emplace();
    while (const auto line = walk.next()) lines_->push_back(*line);
  }
  return *lines_;
}

}  // namespace platform
