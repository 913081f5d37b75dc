#include "platform/profile_reading.h"

#include <algorithm>
#include <cstring>

#include "platform/code_page.h"
#include "platform/profile_lines.h"

namespace platform {

using profile::KeyLines;

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

std::optional<QByteArray> findProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  const auto lines = findProfileSection(file, section);
  return lines ? findProfileValue(*lines, key) : std::nullopt;
}

std::optional<QByteArrayView> findProfileSection(QByteArrayView file, QByteArrayView section) {
  const char* const lines = profile::findSection(file, profile::askedName(section));
  if (!lines) return std::nullopt;
  return QByteArrayView(lines, file.end());
}

std::optional<QByteArray> findProfileValue(QByteArrayView lines, QByteArrayView key) {
  const auto line = KeyLines(lines.begin(), lines.end()).find(profile::askedName(key));
  if (!line) return std::nullopt;
  return unquoted(profile::trimmedValue(*line)).toByteArray();
}

QByteArrayView unquoted(QByteArrayView value) {
  const bool quoted =
      value.size() > 1 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.sliced(1, value.size() - 2) : value;
}

QByteArray listProfileKeys(QByteArrayView file, QByteArrayView section) {
  QByteArray keys;
  const auto lines = findProfileSection(file, section);
  if (!lines) return keys;
  KeyLines walk(lines->begin(), lines->end());
  while (const auto line = walk.next()) keys.append(line->key).append('\0');
  return keys;
}

bool operator==(const ProfileName& a, const ProfileName& b) {
  return profile::sameName(a.letters, b.letters);
}

size_t qHash(const ProfileName& name, size_t seed) {
  constexpr quint64 Golden = 0x9E3779B97F4A7C15;  // spreads a word's low bits over its high ones
  constexpr int Half = 32;
  quint64 hash = seed;
  for (QByteArrayView rest = name.letters; !rest.isEmpty(); rest = rest.sliced(std::min(rest.size(), WordSize))) {
    hash = (hash ^ caseless(rest)) * Golden;
    hash = (hash ^ hash >> Half) * Golden;
  }
  return hash ^ hash >> Half;
}

ProfileKeys profileKeys(QByteArrayView lines) {
  ProfileKeys keys;
  for (const ProfileLine& line : profileLines(lines)) {
    if (!keys.contains({line.key})) keys.insert({line.key}, line);
  }
  return keys;
}

const ProfileLine* lineOf(const ProfileKeys& keys, QByteArrayView key) {
  const auto line = keys.constFind({profile::askedName(key)});
  return line == keys.constEnd() ? nullptr : &*line;
}

std::vector<ProfileLine> profileLines(QByteArrayView lines) {
  std::vector<ProfileLine> all;
  KeyLines walk(lines.begin(), lines.end());
  while (const auto line = walk.next()) {
    all.push_back({line->key, profile::trimmedValue(*line), {line->begin, line->textEnd}});
  }
  return all;
}

const ProfileLine* lineOf(const std::vector<ProfileLine>& lines, QByteArrayView key) {
  const QByteArrayView asked = profile::askedName(key);
  const auto line = std::find_if(lines.begin(), lines.end(),
                                 [&](const ProfileLine& each) { return profile::sameName(each.key, asked); });
  return line == lines.end() ? nullptr : &*line;
}

ProfileSections::ProfileSections(QByteArrayView file) {
  const char* const end = file.end();
  ProfileName name;
  const char* lines = nullptr;
  const auto endSection = [&](const char* sectionEnd) {
    if (!lines) return;
    QByteArrayView& known = sections_[name];
    if (known.isNull()) known = QByteArrayView(lines, sectionEnd);
  };
  sections_.reserve(std::count(file.begin(), file.end(), '['));
  for (const char* at = file.begin(); at != end;) {
    const auto* const bracket = static_cast<const char*>(std::memchr(at, '[', end - at));
    if (!bracket) break;
    at = bracket + 1;
    const char* const head = profile::lineHeadedBy(bracket, file.begin());
    if (!head) continue;
    endSection(head);
    const char* const textEnd = profile::lineTextEnd(at, end);
    name = {profile::sectionName(bracket, textEnd)};
    at = lines = profile::nextLine(textEnd, end);
  }
  endSection(end);
}

QByteArrayView ProfileSections::lines(QByteArrayView name) const {
  return sections_.value({profile::askedName(name)});
}

}  // namespace platform
