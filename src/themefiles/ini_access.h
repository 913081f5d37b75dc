#pragma once

#include <optional>
#include <utility>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include "platform/profile_reading.h"

/// All keyed access to the ini files: the file on disk is read or changed anew by each call.
namespace themefiles {

/// Buffer sizes in use: for key lists and long texts, and for every other read.
inline constexpr qint16 ListBufferSize = 32000;
inline constexpr qint16 ValueBufferSize = 256;

/// The bytes of a file; one that can't be read holds nothing.
QByteArray bytesOrNone(const QString& fileName);

/// The value of a key, at most BufferSize - 1 characters of it; Default (less the blanks behind it) when file, section
/// or key is missing. Without a Key: all keys of the section, each ended by a NUL, a list that is too long cut at
/// BufferSize - 2. Reports nothing.
QString GetINI(const QString& Section, const std::optional<QString>& Key, const QString& Default,
               const QString& FileName, qint16 BufferSize = ValueBufferSize);

/// One section as it stands in the file at this moment, for who asks for several of its keys: each as GetINI gives it,
/// from one reading of the file. Lives no longer than the work on that section.
class SectionReader {
 public:
  SectionReader(const QString& Section, const QString& FileName);
  /// The same from the keys of the section, `file` being the bytes that they lie in.
  SectionReader(QByteArray file, platform::ProfileKeys keys) : file_(std::move(file)), keys_(std::move(keys)) {}
  /// Whether the file has the section.
  bool isThere() const { return lines_.has_value(); }
  QString Value(const QString& Key, const QString& Default = QString()) const;

 private:
  QByteArray file_;
  std::optional<QByteArrayView> lines_;        ///< of file_; none without the section
  std::optional<platform::ProfileKeys> keys_;  ///< instead of the lines
};

/// Sets the key's value in place, adds the key or the section; without a Value removes the key. All other bytes of the
/// file stay. Text that the code page lacks, or with a line end or NUL in it, is not written; nor is anything when the
/// file can't be read or written. Gives no result: who must know reads back (see putINIChecked).
void PutINI(const QString& Section, const QString& Key, const std::optional<QString>& Value, const QString& FileName);

/// PutINI for edits in which a user would believe: throws platform::Failure where that would say nothing, and when the
/// file doesn't give the value back.
void putINIChecked(const QString& Section, const QString& Key, const std::optional<QString>& Value,
                   const QString& FileName);

/// The two halves of it that touch no file or only read one, for who reads and writes the file himself. What PutINI
/// makes of a file's text; throws platform::Failure for text that an ini file can't hold or would not give back.
QByteArray changedText(const QByteArray& text, const QString& Section, const QString& Key,
                       const std::optional<QString>& Value);
/// Throws platform::Failure unless the file gives back what was `written` for the key.
void checkReadsBack(const QByteArray& written, const QString& Section, const QString& Key, const QString& FileName);

/// The value of a key, whole; empty without one. Throws platform::Failure when the file can't be read, for who must not
/// take that for an empty value.
QString wholeValue(const QString& section, const QString& key, const QString& fileName);

/// Whether the file has the key, for who must not take one that can't be read for one that lacks it: throws
/// platform::Failure then.
bool holdsKey(const QString& Section, const QString& Key, const QString& FileName);

/// changedText with the key's whole line, which has the key and "=" in it and no end of its own.
QByteArray changedLine(const QByteArray& text, const QString& section, const QString& key, const QByteArray& line);

/// Throws platform::Failure for text that an ini file can't hold on one line: a line end or NUL in it, or a letter
/// outside the code page.
void checkLineText(const QString& text);

/// The keys of a section in file order, doubles too, as a key list of ListBufferSize shows them.
QStringList keyNames(const QString& Section, const QString& FileName);

}  // namespace themefiles
