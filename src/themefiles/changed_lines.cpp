#include "themefiles/changed_lines.h"

#include <QHash>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/ini_reading.h"
#include "platform/ini_writing.h"
#include "themefiles/ini_access.h"

namespace themefiles {
namespace {

QByteArray nameBytes(const QString& name) {
  checkLineText(name);
  return platform::toAnsi(name).value_or(QByteArray());
}

}  // namespace

QByteArray changedLines(const QByteArray& text, const std::vector<KeyedLine>& lines) {
  if (lines.size() == 1) return changedLine(text, lines.front().section, lines.front().key, lines.front().line);
  std::vector<platform::IniSetting> settings;
  settings.reserve(lines.size());
  for (const auto& [section, key, line] : lines) settings.push_back({nameBytes(section), nameBytes(key), line});
  const QByteArray changed = platform::setIniLines(text, settings);
  const platform::IniSections written{platform::IniText(changed)};
  QHash<QByteArray, platform::IniKeys> keysOf;
  for (size_t i = 0; i < lines.size(); ++i) {
    const auto& [section, key, line] = settings.at(i);
    if (!keysOf.contains(section)) keysOf[section] = platform::iniKeys(written.lines(section));
    const auto* const found = platform::lineOf(keysOf[section], key);
    if (found != nullptr && found->line == line) continue;
    throw platform::Failure(QStringLiteral("%1 in [%2] was not written").arg(lines.at(i).key, lines.at(i).section));
  }
  return changed;
}

}  // namespace themefiles
