#include "platform/ini_outline.h"

#include <algorithm>

#include "platform/ini_lines.h"
#include "platform/ini_reading.h"

namespace platform {

std::vector<OutlineSection> iniOutline(QByteArrayView file) {
  std::vector<OutlineSection> sections;
  const char* const end = file.end();
  const char* next = nullptr;
  int number = 0;
  for (const char* at = file.begin(); at != end; at = next) {
    ++number;
    const char* const textEnd = ini::lineTextEnd(at, end);
    next = ini::nextLine(textEnd, end);
    const char* const head = std::find_if_not(at, textEnd, ini::isBlank);
    if (head != textEnd && *head == '[') {
      sections.push_back({ini::sectionName(head, textEnd).toByteArray(), number, {}});
    } else if (!sections.empty()) {
      const auto key = ini::KeyLines(at, next).next();
      if (!key) continue;
      const QByteArray value = unquoted(ini::trimmedValue(*key)).toByteArray();
      sections.back().keys.push_back({key->key.toByteArray(), value, number});
    }
  }
  return sections;
}

}  // namespace platform
