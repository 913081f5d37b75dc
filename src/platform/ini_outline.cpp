#include "platform/ini_outline.h"

#include <algorithm>

#include "platform/ini_lines.h"
#include "platform/ini_reading.h"

namespace platform {

std::vector<OutlineSection> iniOutline(const IniText& file) {
  std::vector<OutlineSection> sections;
  int number = 0;
  for (const QByteArrayView line : file.lines()) {
    ++number;
    const char* const head = std::find_if_not(line.begin(), line.end(), ini::isBlank);
    if (head != line.end() && *head == '[') {
      sections.push_back({ini::sectionName(head, line.end()), number, {}});
    } else if (!sections.empty()) {
      const auto key = ini::KeyLines(line.begin(), line.end()).next();
      if (key) sections.back().keys.push_back({key->key, unquoted(ini::trimmedValue(*key)), number});
    }
  }
  return sections;
}

}  // namespace platform
