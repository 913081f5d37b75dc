#include "themecheck/ini_file.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/ini_outline.h"
#include "platform/numbers.h"

namespace themecheck {
namespace {

/// Records the names. Of equal ones the first counts.
template <typename Named>
void enter(QHash<QString, qsizetype>& byName, std::vector<Named>& all) {
  for (size_t index = 0; index < all.size(); ++index) {
    const QString name = platform::upperCase(all[index].name);
    const auto found = byName.constFind(name);
    const bool isFirst = found == byName.constEnd();
    all[index].counted = isFirst ? all[index].line : all[static_cast<size_t>(*found)].line;
    if (isFirst) byName.insert(name, static_cast<qsizetype>(index));
  }
}

template <typename Named>
const Named* named(const QHash<QString, qsizetype>& byName, const std::vector<Named>& all, const QString& name) {
  const auto found = byName.constFind(platform::upperCase(platform::trimBlanks(name)));
  return found == byName.constEnd() ? nullptr : &all[static_cast<size_t>(*found)];
}

bool isBlank(char letter) {
  return letter == ' ' || letter == '\t';
}

qsizetype blanksAt(QByteArrayView text) {
  return std::find_if_not(text.begin(), text.end(), isBlank) - text.begin();
}

Head headOf(QByteArrayView line) {
  const qsizetype end = line.indexOf(']');
  if (end < 0) return Head::Unclosed;
  const QByteArrayView tail = line.sliced(end + 1);
  if (!tail.isEmpty()) return blanksAt(tail) == tail.size() ? Head::FollowedByBlanks : Head::Followed;
  return line.startsWith('[') ? Head::Right : Head::Indented;
}

/// A line that is meant to be a section's: "MainStatic]".
bool isUnopenedHead(QByteArrayView line) {
  const QByteArrayView text = line.trimmed();
  if (text.startsWith(ByteOrderMark)) return false;  // that is another fault
  return text.endsWith(']') && text.size() > 1 && !text.contains('=') && !QByteArrayView("[;#").contains(text.front());
}

/// UTF-16 and UTF-32 have a NUL in every other letter, whatever mark they begin with.
void refuseWideLetters(const QByteArray& bytes) {
  const QByteArrayView head = QByteArrayView(bytes).first(std::min<qsizetype>(bytes.size(), 512));
  const auto nuls = std::count(head.begin(), head.end(), '\0');
  const bool isMarked = head.startsWith("\xFF\xFE") || head.startsWith("\xFE\xFF");
  if (nuls * 3 > head.size() || (isMarked && nuls > 0)) {
    throw platform::Failure(QStringLiteral("it is written in UTF-16, not in Windows-1252"));
  }
}

}  // namespace

const IniKey* IniSection::find(const QString& key) const {
  return named(byName, keys, key);
}

QString IniSection::value(const QString& key) const {
  const IniKey* found = find(key);
  return found ? found->value : QString();
}

IniFile::IniFile(CheckedFile file) : file_(std::move(file)), text_(platform::readFile(file_.path)) {
  refuseWideLetters(text_.bytes());
  readSections();
  splitAtUnopenedHeads();
  enterNames();
}

void IniFile::readSections() {
  for (const platform::OutlineSection& found : platform::iniOutline(text_)) {
    IniSection& section = sections_.emplace_back();
    section.name = platform::fromAnsi(found.name);
    section.line = found.line;
    section.head = headOf(line(found.line));
    for (const platform::OutlineKey& key : found.keys) {
      section.keys.push_back({platform::fromAnsi(key.name), platform::fromAnsi(key.value), key.line, 0});
    }
  }
}

/// What stands behind a head without its "[" isn't meant for the section before. That has only its own keys here.
void IniFile::splitAtUnopenedHeads() {
  for (int number = 1; number <= std::ssize(lines()); ++number) {
    if (!isUnopenedHead(line(number))) continue;
    const auto behind = std::find_if(sections_.begin(), sections_.end(),
                                     [&](const IniSection& section) { return section.line > number; });
    IniSection cut;
    cut.name = platform::fromAnsi(line(number).trimmed().chopped(1));
    cut.line = number;
    cut.head = Head::Unopened;
    if (behind != sections_.begin()) {
      std::vector<IniKey>& keys = std::prev(behind)->keys;
      const auto first = std::find_if(keys.begin(), keys.end(), [&](const IniKey& key) { return key.line > number; });
      cut.keys.assign(first, keys.end());
      keys.erase(first, keys.end());
    }
    sections_.insert(behind, std::move(cut));
  }
}

void IniFile::enterNames() {
  enter(byName_, sections_);
  for (IniSection& section : sections_) enter(section.byName, section.keys);
}

QByteArrayView IniFile::line(int number) const {
  return lines().at(static_cast<size_t>(number - 1));
}

const IniSection* IniFile::find(const QString& section) const {
  return named(byName_, sections_, section);
}

std::vector<const IniKey*> IniFile::keysOf(const QString& section) const {
  std::vector<const IniKey*> keys;
  const IniSection* found = find(section);
  if (!found) return keys;
  for (const IniKey& key : found->keys) {
    if (key.line == key.counted) keys.push_back(&key);
  }
  return keys;
}

bool IniFile::has(const QString& section, const QString& key) const {
  const IniSection* found = find(section);
  return found && found->find(key);
}

QString IniFile::sectionBehindMark() const {
  const QByteArrayView first = lines().empty() ? QByteArrayView() : lines().front();
  const QByteArrayView text = first.startsWith(ByteOrderMark) ? first.sliced(ByteOrderMark.size()) : QByteArrayView();
  if (!text.startsWith('[')) return {};
  return platform::fromAnsi(text.sliced(1, std::max<qsizetype>(text.indexOf(']'), 1) - 1));
}

Place IniFile::place(const QString& section) const {
  const IniSection* found = find(section);
  return found ? placeOf(*found) : Place{file_.shown, 1, 0, section, {}};
}

Place IniFile::valueOf(const QString& section, const QString& key) const {
  const IniSection* found = find(section);
  const IniKey* value = found ? found->find(key) : nullptr;
  Place place = this->place(section);
  place.key = key;
  if (!value) return place;
  place = placeOf(*found, *value);
  const QByteArrayView text = line(value->line);
  const qsizetype behind = text.indexOf('=') + 1;
  place.column = static_cast<int>(behind + blanksAt(text.sliced(behind)) + 1);
  return place;
}

Place IniFile::placeOf(const IniSection& section, const IniKey& key) const {
  return {file_.shown, key.line, static_cast<int>(blanksAt(line(key.line)) + 1), section.name, key.name};
}

}  // namespace themecheck
