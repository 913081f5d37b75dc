#include "themefiles/ini_access.h"

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/profile_strings.h"

namespace themefiles {
namespace {

/// A Default without the blanks behind it; those before it stay.
QByteArray defaultBytes(const QString& text) {
  QByteArray bytes = platform::ToAnsi(text).value_or(QByteArray());
  while (bytes.endsWith(' ')) bytes.chop(1);
  return bytes;
}

/// What a buffer of that size takes of a value, or of the Default without one.
QString shown(const std::optional<QByteArray>& value, const QString& text, qint16 bufferSize) {
  return platform::FromAnsi((value ? *value : defaultBytes(text)).left(bufferSize - 1));
}

bool holdsLineEnd(const QString& text) {
  return text.contains(u'\r') || text.contains(u'\n') || text.contains(QChar(0));
}

/// The bytes of a text that an ini file can hold on one line. Throws Failure for any other.
QByteArray lineBytes(const QString& text) {
  if (holdsLineEnd(text)) throw platform::Failure(QStringLiteral("the text holds a line end: %1").arg(text));
  const auto bytes = platform::ToAnsi(text);
  if (!bytes) throw platform::Failure(QStringLiteral("the text holds a letter outside the code page: %1").arg(text));
  return *bytes;
}

/// Reads, changes and writes the file; gives what it holds then. Throws Failure.
QByteArray put(const QString& section, const QString& key, const std::optional<QString>& value,
               const QString& fileName) {
  const QByteArray sectionBytes = lineBytes(section);
  const QByteArray keyBytes = lineBytes(key);
  const QByteArray valueBytes = lineBytes(value.value_or(QString()));
  const QByteArray old = platform::FileExists(fileName) ? platform::ReadFile(fileName) : QByteArray();
  const auto changed = value ? platform::SetProfileValue(old, sectionBytes, keyBytes, valueBytes)
                             : platform::RemoveProfileKey(old, sectionBytes, keyBytes);
  if (changed) platform::WriteFile(fileName, *changed);
  return changed.value_or(old);
}

/// The key list of a section as a buffer of that size takes it: a longer one loses what the two NULs at its end need.
QByteArray keyList(const QByteArray& file, const QByteArray& section, qint16 bufferSize) {
  const QByteArray keys = platform::ListProfileKeys(file, section);
  return keys.size() < bufferSize ? keys : keys.left(bufferSize - 2);
}

/// What an ini file gives back for a written value: one line `k=value`.
QString givenBack(const QString& value) {
  const QByteArray line = "[s]\nk=" + lineBytes(value);
  return platform::FromAnsi(platform::FindProfileValue(line, "s", "k").value_or(QByteArray()));
}

}  // namespace

QString GetINI(const QString& Section, const std::optional<QString>& Key, const QString& Default,
               const QString& FileName, qint16 BufferSize) {
  if (BufferSize < 1) return {};
  std::optional<QByteArray> found;
  const auto section = platform::ToAnsi(Section);
  const auto key = platform::ToAnsi(Key.value_or(QString()));
  try {
    const QByteArray file = platform::ReadFile(FileName);
    if (!Key) return section ? platform::FromAnsi(keyList(file, *section, BufferSize)) : QString();
    if (section && key && !key->isEmpty()) found = platform::FindProfileValue(file, *section, *key);
  } catch (const platform::Failure&) {
    // A file that can't be read holds no key.
    if (!Key) return {};
  }
  return shown(found, Default, BufferSize);
}

SectionReader::SectionReader(const QString& Section, const QString& FileName) {
  const auto section = platform::ToAnsi(Section);
  try {
    file_ = platform::ReadFile(FileName);
    if (section) lines_ = platform::FindProfileSection(file_, *section);
  } catch (const platform::Failure&) {
    // A file that can't be read holds no section.
  }
}

QString SectionReader::Value(const QString& Key, const QString& Default) const {
  const auto key = platform::ToAnsi(Key);
  const bool asked = lines_ && key && !key->isEmpty();
  return shown(asked ? platform::FindProfileValue(*lines_, *key) : std::nullopt, Default, ValueBufferSize);
}

void PutINI(const QString& Section, const QString& Key, const std::optional<QString>& Value, const QString& FileName) {
  try {
    put(Section, Key, Value, FileName);
  } catch (const platform::Failure&) {
    // The service that this stands for tells nobody either; PutINIChecked is for those who must know.
  }
}

QByteArray PutINIChecked(const QString& Section, const QString& Key, const std::optional<QString>& Value,
                         const QString& FileName) {
  QByteArray held = put(Section, Key, Value, FileName);
  const QString missing(QChar(1));
  const QString now = GetINI(Section, Key, missing, FileName, ListBufferSize);
  QString wanted = missing;
  if (Value) {
    wanted = givenBack(*Value);
  } else if (const auto second = platform::FindProfileValue(held, lineBytes(Section), lineBytes(Key))) {
    // Of a doubled key the first goes, and the second shows.
    wanted = platform::FromAnsi(*second);
  }
  wanted.truncate(ListBufferSize - 1);
  if (now != wanted) throw platform::Failure(QStringLiteral("%1 in [%2] was not written").arg(Key, Section));
  return held;
}

void CheckLineText(const QString& text) {
  lineBytes(text);
}

QStringList KeyNames(const QString& Section, const QString& FileName) {
  QStringList names = GetINI(Section, std::nullopt, QString(), FileName, ListBufferSize).split(QChar(0));
  names.removeLast();
  return names;
}

}  // namespace themefiles
