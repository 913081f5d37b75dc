#include "themefiles/ini_access.h"

#include <utility>

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

/// The bytes of a file; one that can't be read holds nothing.
QByteArray bytesOrNone(const QString& fileName) {
  try {
    return platform::ReadFile(fileName);
  } catch (const platform::Failure&) {
    return {};
  }
}

/// The key list of a section as a buffer of that size takes it: a longer one loses what the two NULs at its end need.
QByteArray keyList(const QByteArray& file, const QByteArray& section, qint16 bufferSize) {
  const QByteArray keys = platform::ListProfileKeys(file, section);
  return keys.size() < bufferSize ? keys : keys.left(bufferSize - 2);
}

/// What an ini file gives back for a written value: one line `k=value`.
std::optional<QByteArray> givenBack(const QByteArray& value) {
  return platform::FindProfileValue("[s]\nk=" + value, "s", "k");
}

}  // namespace

QString GetINI(const QString& Section, const std::optional<QString>& Key, const QString& Default,
               const QString& FileName, qint16 BufferSize) {
  if (BufferSize < 1) return {};
  std::optional<QByteArray> found;
  const auto section = platform::ToAnsi(Section);
  const auto key = platform::ToAnsi(Key.value_or(QString()));
  const QByteArray file = bytesOrNone(FileName);
  if (!Key) return section ? platform::FromAnsi(keyList(file, *section, BufferSize)) : QString();
  if (section && key && !key->isEmpty()) found = platform::FindProfileValue(file, *section, *key);
  return shown(found, Default, BufferSize);
}

SectionReader::SectionReader(const QString& Section, const QString& FileName)
    : SectionReader(Section, bytesOrNone(FileName)) {}

SectionReader::SectionReader(const QString& Section, QByteArray file) : file_(std::move(file)) {
  if (const auto section = platform::ToAnsi(Section)) lines_ = platform::FindProfileSection(file_, *section);
}

QString SectionReader::Value(const QString& Key, const QString& Default) const {
  const auto key = platform::ToAnsi(Key);
  const bool asked = lines_ && key && !key->isEmpty();
  return shown(asked ? platform::FindProfileValue(*lines_, *key) : std::nullopt, Default, ValueBufferSize);
}

void PutINI(const QString& Section, const QString& Key, const std::optional<QString>& Value, const QString& FileName) {
  try {
    const auto old = platform::ReadIfThere(FileName);
    const auto changed = ChangedText(old.value_or(QByteArray()), Section, Key, Value);
    if (changed != old) platform::WriteFile(FileName, changed);
  } catch (const platform::Failure&) {
    // The service that this stands for tells nobody either; PutINIChecked is for those who must know.
  }
}

void PutINIChecked(const QString& Section, const QString& Key, const std::optional<QString>& Value,
                   const QString& FileName) {
  const auto old = platform::ReadIfThere(FileName);
  const QByteArray changed = ChangedText(old.value_or(QByteArray()), Section, Key, Value);
  if (changed != old) platform::WriteFile(FileName, changed);
  CheckReadsBack(changed, Section, Key, FileName);
}

QByteArray ChangedText(const QByteArray& text, const QString& Section, const QString& Key,
                       const std::optional<QString>& Value) {
  const QByteArray section = lineBytes(Section);
  const QByteArray key = lineBytes(Key);
  const QByteArray value = lineBytes(Value.value_or(QString()));
  if (!Value) return platform::RemoveProfileKey(text, section, key).value_or(text);
  const QByteArray changed = platform::SetProfileValue(text, section, key, value).value_or(text);
  if (platform::FindProfileValue(changed, section, key) != givenBack(value)) {
    throw platform::Failure(QStringLiteral("%1 in [%2] was not written").arg(Key, Section));
  }
  return changed;
}

void CheckReadsBack(const QByteArray& written, const QString& Section, const QString& Key, const QString& FileName) {
  const QByteArray section = lineBytes(Section);
  const QByteArray key = lineBytes(Key);
  const QString what = QStringLiteral("%1 in [%2] was written, but ").arg(Key, Section);
  std::optional<QByteArray> now;
  try {
    now = platform::ReadIfThere(FileName);
  } catch (const platform::Failure& failure) {
    throw platform::Failure(what + QStringLiteral("can't be read back: ") + failure.description());
  }
  const bool same = now && (*now == written || platform::FindProfileValue(*now, section, key) ==
                                                   platform::FindProfileValue(written, section, key));
  if (!same) throw platform::Failure(what + QStringLiteral("another program has changed the file since"));
}

QByteArray changedLine(const QByteArray& text, const QString& section, const QString& key, const QByteArray& line) {
  const QByteArray sectionBytes = lineBytes(section);
  const QByteArray keyBytes = lineBytes(key);
  const QByteArray changed = platform::setProfileLine(text, sectionBytes, keyBytes, line).value_or(text);
  if (platform::FindProfileValue(changed, sectionBytes, keyBytes) != givenBack(line.sliced(line.indexOf('=') + 1))) {
    throw platform::Failure(QStringLiteral("%1 in [%2] was not written").arg(key, section));
  }
  return changed;
}

bool HoldsKey(const QString& Section, const QString& Key, const QString& FileName) {
  const auto file = platform::ReadIfThere(FileName);
  return file && platform::FindProfileValue(*file, lineBytes(Section), lineBytes(Key));
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
