#pragma once

#include <optional>

#include <QByteArrayView>

/// Scans the lines of ini files for ini_reading.h and ini_writing.h. Pointers lead into the file's bytes.
namespace platform::ini {

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
constexpr bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}
/// The text without blanks and tabs at its ends.
QByteArrayView trimmed(QByteArrayView text);

/// The name that a caller asks for, without blanks (0x20) at its ends; its tabs count.
QByteArrayView askedName(QByteArrayView name);
/// Whether a name has a tab at an end. No name in a file has, since they are trimmed.
bool endsInTab(QByteArrayView name);
bool sameName(QByteArrayView a, QByteArrayView b);

/// The start of the line if only blanks and tabs stand before the place in it, else null.
const char* lineHeadedBy(const char* place, const char* fileBegin);
/// The end of the text of the line at `at`.
const char* lineTextEnd(const char* at, const char* fileEnd);
/// The start of the line after the one whose text ends at `textEnd`.
const char* nextLine(const char* textEnd, const char* fileEnd);

/// The name in the section line whose "[" is at `bracket`. The "]" may be missing.
QByteArrayView sectionName(const char* bracket, const char* textEnd);
/// The first line inside the first section of that name, or null.
const char* findSection(QByteArrayView file, QByteArrayView name);

struct KeyLine {
  QByteArrayView key;
  const char* begin;    ///< start of the line
  const char* value;    ///< directly after the "="
  const char* textEnd;  ///< end of the line's text
  const char* next;     ///< start of the next line
};

/// Iterates over the key lines of a section, from its line `at` on.
class KeyLines {
 public:
  KeyLines(const char* at, const char* fileEnd) : at_(at), end_(fileEnd) {}

  /// The next key line, or none at the end of the section.
  std::optional<KeyLine> next();
  /// The next line with that key.
  std::optional<KeyLine> find(QByteArrayView key);

 private:
  const char* at_;
  const char* end_;
};

/// The value of a key line without blanks and tabs at its ends.
QByteArrayView trimmedValue(const KeyLine& line);

}  // namespace platform::ini
