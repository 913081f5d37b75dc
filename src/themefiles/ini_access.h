#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include "platform/ini_reading.h"

/// Access to the keys of ini files. Each call reads or changes the file on disk.
namespace themefiles {

/// The buffer sizes: for key lists and long texts, and for all else.
inline constexpr qint16 ListBufferSize = 32000;
inline constexpr qint16 ValueBufferSize = 256;

/// The value of a key, cut to BufferSize - 1 characters. If file, section or key is missing, it is the Default without
/// blanks at its end. Without a Key it is all keys of the section, each followed by a NUL, cut to BufferSize - 2
/// characters. Reports no failure.
QString GetINI(const QString& Section, const std::optional<QString>& Key, const QString& Default,
               const QString& FileName, qint16 BufferSize = ValueBufferSize);

/// Reads a file once for several keys of one section. Value gives the same as GetINI. Keep it only while working on
/// that section: it doesn't see later changes of the file.
class SectionReader {
 public:
  SectionReader(const QString& Section, const QString& FileName);
  /// The same in a file that was read already, for one section of it or for many.
  SectionReader(const QString& Section, platform::IniText file);
  SectionReader(const QString& Section, const platform::IniSections& file);
  /// Whether the file has the section.
  bool isThere() const { return lines_.has_value(); }
  QString Value(const QString& Key, const QString& Default = QString()) const;

 private:
  platform::IniText file_;
  std::optional<QByteArrayView> lines_;  ///< the section's lines in file_
  mutable bool asked_ = false;
  mutable std::vector<platform::IniLine> keys_;  ///< of these lines, once a second key is asked for
};

/// Sets the value of a key; adds key and section if they are missing; without a Value removes the key. All other bytes
/// of the file stay. Fails silently: see putINIChecked. Text that isn't in the code page or contains a line end or NUL
/// is not written.
void PutINI(const QString& Section, const QString& Key, const std::optional<QString>& Value, const QString& FileName);

/// Like PutINI, but reads the value back, and throws platform::Failure if it wasn't written.
void putINIChecked(const QString& Section, const QString& Key, const std::optional<QString>& Value,
                   const QString& FileName);

/// The file's text as PutINI would write it. Throws platform::Failure for a text that an ini file can't hold or that
/// would read back differently.
QByteArray changedText(const QByteArray& text, const QString& Section, const QString& Key,
                       const std::optional<QString>& Value);
/// Throws platform::Failure unless the file now has the same value for the key as the text `written`.
void checkReadsBack(const QByteArray& written, const QString& Section, const QString& Key, const QString& FileName);

/// The value of a key in a file's text, at any length; none without the key. Throws platform::Failure for names that an
/// ini file can't hold.
std::optional<QString> wholeValue(const QByteArray& text, const QString& section, const QString& key);

/// A key's whole line, with the key and the "=", but no line end.
struct KeyedLine {
  QString section;
  QString key;
  QByteArray line;
};

/// Like changedText, but replaces whole lines, of which no two are of the same key.
QByteArray changedLines(const QByteArray& text, const std::vector<KeyedLine>& lines);

/// Throws platform::Failure if the text contains a line end, a NUL or a letter outside the code page.
void checkLineText(const QString& text);

/// The keys of a section in file order, duplicates included. The list is cut as by GetINI with ListBufferSize.
QStringList keyNames(const QString& Section, const QString& FileName);

}  // namespace themefiles
