#include "platform/ini_section_names.h"

#include <cstring>

#include <QSet>

#include "platform/ini_lines.h"
#include "platform/ini_reading.h"

namespace platform {

std::vector<QByteArrayView> iniSectionNames(QByteArrayView file) {
  std::vector<QByteArrayView> names;
  QSet<IniName> known;
  const char* const end = file.end();
  for (const char* at = file.begin(); at != end;) {
    const auto* const bracket = static_cast<const char*>(std::memchr(at, '[', end - at));
    if (!bracket) break;
    at = bracket + 1;
    if (!ini::lineHeadedBy(bracket, file.begin())) continue;
    const char* const textEnd = ini::lineTextEnd(at, end);
    const IniName name{ini::sectionName(bracket, textEnd)};
    if (!known.contains(name)) names.push_back(name.letters);
    known.insert(name);
    at = ini::nextLine(textEnd, end);
  }
  return names;
}

}  // namespace platform
