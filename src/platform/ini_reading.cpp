#include "platform/ini_reading.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/code_page.h"
#include "platform/ini_lines.h"

namespace platform {

using ini::KeyLines;

namespace {

constexpr qsizetype WordSize = sizeof(quint64);

/// The first letters, at most WordSize of them, as a number that is the same in any case. Letters beyond ASCII are left
/// out: their two cases don't differ in one bit.
quint64 caseless(QByteArrayView letters) {
  constexpr quint64 Every = 0x0101010101010101;
  constexpr quint64 CaseBit = 0x20;
  constexpr quint64 Byte = 0xFF;
  quint64 word = 0;
  std::memcpy(&word, letters.data(), static_cast<std::size_t>(std::min(letters.size(), WordSize)));
  const quint64 beyondAscii = (word >> 7) & Every;
  return word & ~(Every * CaseBit) & ~(beyondAscii * Byte);
}

}  // namespace

std::optional<QByteArray> findIniValue(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  const auto lines = findIniSection(file, section);
  return lines ? findIniValue(*lines, key) : std::nullopt;
}

std::optional<QByteArrayView> findIniSection(QByteArrayView file, QByteArrayView section) {
  const char* const lines = ini::findSection(file, ini::askedName(section));
  if (!lines) return std::nullopt;
  return QByteArrayView(lines, file.end());
}

std::optional<QByteArray> findIniValue(QByteArrayView lines, QByteArrayView key) {
  const auto line = KeyLines(lines.begin(), lines.end()).find(ini::askedName(key));
  if (!line) return std::nullopt;
  return unquoted(ini::trimmedValue(*line)).toByteArray();
}

QByteArrayView unquoted(QByteArrayView value) {
  const bool quoted =
      value.size() > 1 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.sliced(1, value.size() - 2) : value;
}

QByteArray listIniKeys(QByteArrayView file, QByteArrayView section) {
  QByteArray keys;
  const auto lines = findIniSection(file, section);
  if (!lines) return keys;
  KeyLines walk(lines->begin(), lines->end());
  while (const auto line = walk.next()) keys.append(line->key).append('\0');
  return keys;
}

bool operator==(const IniName& a, const IniName& b) {
  return ini::sameName(a.letters, b.letters);
}

size_t qHash(const IniName& name, size_t seed) {
  constexpr quint64 Golden = 0x9E3779B97F4A7C15;  // spreads a word's low bits over its high ones
  constexpr int Half = 32;
  quint64 hash = seed;
  for (QByteArrayView rest = name.letters; !rest.isEmpty(); rest = rest.sliced(std::min(rest.size(), WordSize))) {
    hash = (hash ^ caseless(rest)) * Golden;
    hash = (hash ^ hash >> Half) * Golden;
  }
  return hash ^ hash >> Half;
}

IniKeys iniKeys(QByteArrayView lines) {
  IniKeys keys;
  const std::vector<IniLine> all = iniLines(lines);
  keys.reserve(static_cast<qsizetype>(all.size()));
  for (const IniLine& line : all) {
    if (!keys.contains({line.key})) keys.insert({line.key}, line);
  }
  return keys;
}

const IniLine* lineOf(const IniKeys& keys, QByteArrayView key) {
  const auto line = keys.constFind({ini::askedName(key)});
  return line == keys.constEnd() ? nullptr : &*line;
}

std::vector<IniLine> iniLines(QByteArrayView lines) {
  std::vector<IniLine> all;
  KeyLines walk(lines.begin(), lines.end());
  while (const auto line = walk.next()) {
    all.push_back({line->key, ini::trimmedValue(*line), {line->begin, line->textEnd}});
  }
  return all;
}

const IniLine* lineOf(const std::vector<IniLine>& lines, QByteArrayView key) {
  const QByteArrayView asked = ini::askedName(key);
  const auto line =
      std::find_if(lines.begin(), lines.end(), [&](const IniLine& each) { return ini::sameName(each.key, asked); });
  return line == lines.end() ? nullptr : &*line;
}

IniSections::IniSections(IniText text) : text_(std::move(text)) {
  const QByteArrayView file = text_.bytes();
  const char* const end = file.end();
  IniName name;
  const char* lines = nullptr;
  const auto endSection = [&](const char* sectionEnd) {
    if (!lines) return;
    QByteArrayView& known = sections_[name];
    if (!known.isNull()) return;
    known = QByteArrayView(lines, sectionEnd);
    names_.push_back(name.letters);
  };
  sections_.reserve(std::count(file.begin(), file.end(), '['));
  for (const char* at = file.begin(); at != end;) {
    const auto* const bracket = static_cast<const char*>(std::memchr(at, '[', end - at));
    if (!bracket) break;
    at = bracket + 1;
    const char* const head = ini::lineHeadedBy(bracket, file.begin());
    if (!head) continue;
    endSection(head);
    const char* const textEnd = ini::lineTextEnd(at, end);
    name = {ini::sectionName(bracket, textEnd)};
    at = lines = ini::nextLine(textEnd, end);
  }
  endSection(end);
}

QByteArrayView IniSections::lines(QByteArrayView name) const {
  return sections_.value({ini::askedName(name)});
}

}  // namespace platform
