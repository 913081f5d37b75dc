#pragma once

#include <optional>

#include <QByteArrayView>

/// The lines of an ini file for the rules of its keyed access, as pointers into the file's bytes: names, section lines
/// and key lines.
namespace platform::profile {

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
constexpr bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}
/// The text without blanks and tabs round it.
QByteArrayView trimmed(QByteArrayView text);

/// A name that is asked for: only blanks (0x20) at its ends don't count.
QByteArrayView askedName(QByteArrayView name);
/// Whether a name that is asked for can be none of a file: there tabs at the ends don't count either.
bool endsInTab(QByteArrayView name);
bool sameName(QByteArrayView a, QByteArrayView b);

/// Where the text of the line at `at` ends.
const char* lineTextEnd(const char* at, const char* fileEnd);
/// Where the next line starts, `textEnd` being the end of a line's text.
const char* nextLine(const char* textEnd, const char* fileEnd);

/// The name in the section line whose "[" stands at `bracket`. The "]" may be missing.
QByteArrayView sectionName(const char* bracket, const char* textEnd);
/// The line behind the line of the first section of that name; null without one.
const char* findSection(QByteArrayView file, QByteArrayView name);

struct KeyLine {
  QByteArrayView key;
  const char* begin;    ///< of the whole line
  const char* value;    ///< directly behind the "="
  const char* textEnd;  ///< in front of the line's end
  const char* next;     ///< behind the line's end
};

/// Walks the key lines of the section whose lines begin at `at`.
class KeyLines {
 public:
  KeyLines(const char* at, const char* fileEnd) : at_(at), end_(fileEnd) {}

  /// The next key line; none behind the last one of the section.
  std::optional<KeyLine> next();
  /// The next line of that key.
  std::optional<KeyLine> find(QByteArrayView key);

 private:
  const char* at_;
  const char* end_;
};

/// The value of a key line without blanks and tabs round it.
QByteArrayView trimmedValue(const KeyLine& line);

}  // namespace platform::profile
