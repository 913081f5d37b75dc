#include "platform/profile_outline.h"

#include <algorithm>

#include "platform/profile_lines.h"
#include "platform/profile_reading.h"

namespace platform {

std::vector<OutlineSection> profileOutline(QByteArrayView file) {
  std::vector<OutlineSection> sections;
  const char* const end = file.end();
  const char* next = nullptr;
  int number = 0;
  for (const char* at = file.begin(); at != end; at = next) {
    ++number;
    const char* const textEnd = profile::lineTextEnd(at, end);
    next = profile::nextLine(textEnd, end);
    const char* const head = std::find_if_not(at, textEnd, profile::isBlank);
    if (head != textEnd && *head == '[') {
      sections.push_back({profile::sectionName(head, textEnd).toByteArray(), number, {}});
    } else if (!sections.empty()) {
      const auto key = profile::KeyLines(at, next).next();
      if (!key) continue;
      const QByteArray value = unquoted(profile::trimmedValue(*key)).toByteArray();
      sections.back().keys.push_back({key->key.toByteArray(), value, number});
    }
  }
  return sections;
}

}  // namespace platform
