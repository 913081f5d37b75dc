#include "platform/profile_reading.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/profile_lines.h"

namespace platform {

using profile::KeyLines;

namespace {

QByteArray upperCase(QByteArrayView name) {
  QByteArray upper(name.size(), Qt::Uninitialized);
  std::transform(name.begin(), name.end(), upper.begin(), upperCaseByte);
  return upper;
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

ProfileKeys profileKeys(QByteArrayView lines) {
  ProfileKeys keys;
  KeyLines walk(lines.begin(), lines.end());
  while (const auto line = walk.next()) {
    const QByteArray name = upperCase(line->key);
    if (keys.contains(name)) continue;
    keys.insert(name, {line->key, profile::trimmedValue(*line), {line->begin, line->textEnd}});
  }
  return keys;
}

const ProfileLine* lineOf(const ProfileKeys& keys, QByteArrayView key) {
  const auto line = keys.constFind(upperCase(profile::askedName(key)));
  return line == keys.constEnd() ? nullptr : &*line;
}

ProfileSections::ProfileSections(QByteArrayView file) {
  QByteArray name;
  const char* lines = nullptr;
  const auto endSection = [&](const char* end) {
    if (lines && !sections_.contains(name)) sections_.insert(name, QByteArrayView(lines, end));
  };
  for (const char* at = file.begin(); at != file.end();) {
    const char* const head = std::find_if_not(at, file.end(), profile::isBlank);
    const char* const textEnd = profile::lineTextEnd(head, file.end());
    const char* const next = profile::nextLine(textEnd, file.end());
    if (head != textEnd && *head == '[') {
      endSection(at);
      name = upperCase(profile::sectionName(head, textEnd));
      lines = next;
    }
    at = next;
  }
  endSection(file.end());
}

QByteArrayView ProfileSections::lines(QByteArrayView name) const {
  return sections_.value(upperCase(profile::askedName(name)));
}

}  // namespace platform
