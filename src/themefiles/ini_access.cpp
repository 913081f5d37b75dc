#include "themefiles/ini_access.h"

#include <algorithm>
#include <utility>

#include <QHash>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/ini_reading.h"
#include "platform/ini_writing.h"

namespace themefiles {
namespace {

/// A Default without blanks at its end.
QByteArray defaultBytes(const QString& text) {
  QByteArray bytes = platform::toAnsi(text).value_or(QByteArray());
  while (bytes.endsWith(' ')) bytes.chop(1);
  return bytes;
}

/// The value, or else the Default, cut to the buffer's size.
QString shown(std::optional<QByteArrayView> value, const QString& text, qint16 bufferSize) {
  if (!value && text.isEmpty()) return {};
  const QByteArray without = value ? QByteArray() : defaultBytes(text);
  const QByteArrayView all = value ? *value : without;
  return platform::fromAnsi(all.first(std::min(all.size(), qsizetype{bufferSize} - 1)));
}

bool holdsLineEnd(const QString& text) {
  return text.contains(u'\r') || text.contains(u'\n') || text.contains(QChar(0));
}

/// The text's bytes. Throws Failure if a line of an ini file can't hold it.
QByteArray lineBytes(const QString& text) {
  if (holdsLineEnd(text)) throw platform::Failure(QStringLiteral("the text holds a line end: %1").arg(text));
  const auto bytes = platform::toAnsi(text);
  if (!bytes) throw platform::Failure(QStringLiteral("the text holds a letter outside the code page: %1").arg(text));
  return *bytes;
}

/// The key list of a section. A list that is too long is cut so that two NULs still fit into the buffer.
QByteArray keyList(const QByteArray& file, const QByteArray& section, qint16 bufferSize) {
  const QByteArray keys = platform::listIniKeys(file, section);
  return keys.size() < bufferSize ? keys : keys.left(bufferSize - 2);
}

/// Sets the value in the file, in one turn, and gives the file's text.
QByteArray put(const QString& Section, const QString& Key, const std::optional<QString>& Value,
               const QString& FileName) {
  platform::FileTurn turn(FileName);
  const QByteArray text = turn.text().value_or(QByteArray());
  const QByteArray changed = changedText(text, Section, Key, Value);
  if (changed != text) turn.replace(changed);
  return changed;
}

/// The value as it reads back from an ini file.
std::optional<QByteArray> givenBack(const QByteArray& value) {
  return platform::findIniValue("[s]\nk=" + value, "s", "k");
}

platform::Failure notWritten(const QString& section, const QString& key) {
  return platform::Failure(QStringLiteral("%1 in [%2] was not written").arg(key, section));
}

/// The text with another line of one key, which goes without an index of all sections.
QByteArray changedLine(const QByteArray& text, const KeyedLine& line) {
  const QByteArray section = lineBytes(line.section);
  const QByteArray key = lineBytes(line.key);
  const QByteArray changed = platform::setIniLine(text, section, key, line.line).value_or(text);
  const QByteArray value = line.line.sliced(line.line.indexOf('=') + 1);
  if (platform::findIniValue(changed, section, key) != givenBack(value)) throw notWritten(line.section, line.key);
  return changed;
}

/// The bytes of a file; empty if it can't be read.
QByteArray bytesOrNone(const QString& fileName) {
  try {
    return platform::readFile(fileName);
  } catch (const platform::Failure&) {
    return {};
  }
}

}  // namespace

QString GetINI(const QString& Section, const std::optional<QString>& Key, const QString& Default,
               const QString& FileName, qint16 BufferSize) {
  if (BufferSize < 1) return {};
  std::optional<QByteArray> found;
  const auto section = platform::toAnsi(Section);
  const auto key = platform::toAnsi(Key.value_or(QString()));
  const QByteArray file = bytesOrNone(FileName);
  if (!Key) return section ? platform::fromAnsi(keyList(file, *section, BufferSize)) : QString();
  if (section && key && !key->isEmpty()) found = platform::findIniValue(file, *section, *key);
  return shown(found, Default, BufferSize);
}

SectionReader::SectionReader(const QString& Section, const QString& FileName)
    : SectionReader(Section, platform::IniText(bytesOrNone(FileName))) {}

SectionReader::SectionReader(const QString& Section, platform::IniText file) : file_(std::move(file)) {
  if (const auto section = platform::toAnsi(Section)) lines_ = platform::findIniSection(file_.bytes(), *section);
}

SectionReader::SectionReader(const QString& Section, const platform::IniSections& file) : file_(file.text()) {
  const auto section = platform::toAnsi(Section);
  const QByteArrayView lines = section ? file.lines(*section) : QByteArrayView();
  if (!lines.isNull()) lines_ = lines;
}

QString SectionReader::Value(const QString& Key, const QString& Default) const {
  const auto key = platform::toAnsi(Key);
  if (!key || key->isEmpty() || !lines_) return shown(std::nullopt, Default, ValueBufferSize);
  if (!std::exchange(asked_, true)) return shown(platform::findIniValue(*lines_, *key), Default, ValueBufferSize);
  if (keys_.empty()) keys_ = platform::iniLines(*lines_);
  const auto* const line = platform::lineOf(keys_, *key);
  return shown(line ? std::optional(platform::unquoted(line->value)) : std::nullopt, Default, ValueBufferSize);
}

void PutINI(const QString& Section, const QString& Key, const std::optional<QString>& Value, const QString& FileName) {
  try {
    put(Section, Key, Value, FileName);
  } catch (const platform::Failure&) {
    // By its contract; putINIChecked reports.
  }
}

void putINIChecked(const QString& Section, const QString& Key, const std::optional<QString>& Value,
                   const QString& FileName) {
  checkReadsBack(put(Section, Key, Value, FileName), Section, Key, FileName);
}

QByteArray changedText(const QByteArray& text, const QString& Section, const QString& Key,
                       const std::optional<QString>& Value) {
  const QByteArray section = lineBytes(Section);
  const QByteArray key = lineBytes(Key);
  const QByteArray value = lineBytes(Value.value_or(QString()));
  if (!Value) return platform::removeIniKey(text, section, key).value_or(text);
  const QByteArray changed = platform::setIniValue(text, section, key, value).value_or(text);
  if (platform::findIniValue(changed, section, key) != givenBack(value)) throw notWritten(Section, Key);
  return changed;
}

void checkReadsBack(const QByteArray& written, const QString& Section, const QString& Key, const QString& FileName) {
  const QByteArray section = lineBytes(Section);
  const QByteArray key = lineBytes(Key);
  std::optional<QByteArray> now;
  try {
    now = platform::readIfThere(FileName);
  } catch (const platform::Failure& failure) {
    throw platform::Failure(
        QStringLiteral("%1 in [%2] was written, but can't be read back: %3").arg(Key, Section, failure.description()));
  }
  const bool same = now && (*now == written || platform::findIniValue(*now, section, key) ==
                                                   platform::findIniValue(written, section, key));
  if (same) return;
  throw platform::Failure(
      QStringLiteral("%1 in [%2] was written, but another program has changed the file since").arg(Key, Section));
}

QByteArray changedLines(const QByteArray& text, const std::vector<KeyedLine>& lines) {
  if (lines.size() == 1) return changedLine(text, lines.front());
  std::vector<platform::IniSetting> settings;
  settings.reserve(lines.size());
  for (const auto& [section, key, line] : lines) settings.push_back({lineBytes(section), lineBytes(key), line});
  const QByteArray changed = platform::setIniLines(text, settings);
  const platform::IniSections written{platform::IniText(changed)};
  QHash<QByteArray, platform::IniKeys> keysOf;
  for (size_t i = 0; i < lines.size(); ++i) {
    const auto& [section, key, line] = settings.at(i);
    if (!keysOf.contains(section)) keysOf[section] = platform::iniKeys(written.lines(section));
    const auto* const found = platform::lineOf(keysOf[section], key);
    if (found == nullptr || found->line != line) throw notWritten(lines.at(i).section, lines.at(i).key);
  }
  return changed;
}

std::optional<QString> wholeValue(const QByteArray& text, const QString& section, const QString& key) {
  const auto value = platform::findIniValue(text, lineBytes(section), lineBytes(key));
  return value ? std::optional(platform::fromAnsi(*value)) : std::nullopt;
}

void checkLineText(const QString& text) {
  lineBytes(text);
}

QStringList keyNames(const QString& Section, const QString& FileName) {
  QStringList names = GetINI(Section, std::nullopt, QString(), FileName, ListBufferSize).split(QChar(0));
  names.removeLast();
  return names;
}

}  // namespace themefiles
