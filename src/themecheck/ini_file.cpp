#include "themecheck/ini_file.h"

#include <utility>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/ini_outline.h"
#include "platform/text_lines.h"

namespace themecheck {
namespace {

/// Records the name of the last of `all`. If an earlier one has the same name, that one counts.
template <typename Named>
void enter(QHash<QString, qsizetype>& byName, std::vector<Named>& all) {
  Named& last = all.back();
  const auto index = static_cast<qsizetype>(all.size()) - 1;
  const auto found = byName.constFind(platform::upperCase(last.name));
  last.counted = found == byName.constEnd() ? last.line : all[static_cast<size_t>(*found)].line;
  if (found == byName.constEnd()) byName.insert(platform::upperCase(last.name), index);
}

template <typename Named>
const Named* named(const QHash<QString, qsizetype>& byName, const std::vector<Named>& all, const QString& name) {
  const auto found = byName.constFind(platform::upperCase(name));
  return found == byName.constEnd() ? nullptr : &all[static_cast<size_t>(*found)];
}

/// Records the sections by the names that the reader of tags gives them: with the text behind their "]".
QHash<QString, int> linesOfTags(const QByteArray& file) {
  QHash<QString, int> lines;
  platform::TextLines walk(file);
  int number = 0;
  while (const auto line = walk.next()) {
    ++number;
    if (!line->startsWith('[')) continue;
    const QString text = platform::fromAnsi(*line);
    const QString tag = platform::upperCase(text.mid(1, text.size() - 2));
    if (!lines.contains(tag)) lines.insert(tag, number);
  }
  return lines;
}

}  // namespace

const IniKey* IniSection::find(const QString& key) const {
  return named(byName, keys, key);
}

QString IniSection::value(const QString& key) const {
  const IniKey* found = find(key);
  return found ? found->value : QString();
}

IniFile::IniFile(QString name, const QString& path, QString shown) : name_(std::move(name)), shown_(std::move(shown)) {
  const QByteArray file = platform::readFile(path);
  tagLines_ = linesOfTags(file);
  for (const platform::OutlineSection& found : platform::iniOutline(file)) {
    IniSection& section = sections_.emplace_back();
    section.name = platform::fromAnsi(found.name);
    section.line = found.line;
    for (const platform::OutlineKey& key : found.keys) {
      section.keys.push_back({platform::fromAnsi(key.name), platform::fromAnsi(key.value), key.line, 0});
      enter(section.byName, section.keys);
    }
    enter(byName_, sections_);
  }
}

const IniSection* IniFile::find(const QString& section) const {
  return named(byName_, sections_, section);
}

Place IniFile::place(const QString& section, const QString& key) const {
  Place place{shown_, 0, section, key};
  if (const IniSection* found = find(section)) {
    const IniKey* line = key.isEmpty() ? nullptr : found->find(key);
    place = {shown_, line ? line->line : found->line, found->name, line ? line->name : key};
  } else {
    place.line = tagLines_.value(platform::upperCase(section));
  }
  return place;
}

}  // namespace themecheck
