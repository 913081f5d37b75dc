#include "platform/profile_reading.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "platform/code_page.h"
#include "platform/profile_lines.h"

namespace platform {

using profile::KeyLines;

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
  constexpr size_t Prime = 0x100000001B3;
  return std::accumulate(name.letters.begin(), name.letters.end(), seed, [](size_t hash, char letter) {
    return (hash ^ static_cast<unsigned char>(upperCaseByte(letter))) * Prime;
  });
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
    if (lines && !sections_.contains(name)) sections_.insert(name, QByteArrayView(lines, sectionEnd));
  };
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
