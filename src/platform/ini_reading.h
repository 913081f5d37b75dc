#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include "platform/ini_text.h"

/// Reads ini files as bytes: nothing here touches a file or keeps state between calls. The rules:
/// - Names of sections and keys are compared regardless of case, within the code page.
/// - Of equal names the first section counts, and in it the first key.
/// - "=" separates key and value. ";" starts a comment line, "#" doesn't.
/// - Blanks and tabs around names and values in the file are ignored, and blanks around names that a caller gives.
/// - Lines end in CR LF, LF or CR.
namespace platform {

/// The value of a key without blanks and tabs at its ends and without one pair of quotation marks around it. None if
/// the section or the key is missing.
std::optional<QByteArray> findIniValue(QByteArrayView file, QByteArrayView section, QByteArrayView key);

/// The same in two steps, for several keys of one section: the file from the section's first line on, and a key's value
/// in it.
std::optional<QByteArrayView> findIniSection(QByteArrayView file, QByteArrayView section);
std::optional<QByteArray> findIniValue(QByteArrayView lines, QByteArrayView key);

/// All keys of the section in file order, duplicates included, each followed by a NUL. Empty without the section.
QByteArray listIniKeys(QByteArrayView file, QByteArrayView section);

/// A key line of a section.
struct IniLine {
  QByteArrayView key;
  QByteArrayView value;  ///< without blanks at its ends, with its quotation marks
  QByteArrayView line;   ///< the whole line without its line end
};

/// The value without one pair of equal quotation marks around it.
QByteArrayView unquoted(QByteArrayView value);

/// A name in a file's bytes, compared regardless of case.
struct IniName {
  QByteArrayView letters;
};
bool operator==(const IniName& a, const IniName& b);
size_t qHash(const IniName& name, size_t seed = 0);

/// A section's key lines by the key, for many look-ups. Of duplicates it has the first.
using IniKeys = QHash<IniName, IniLine>;
IniKeys iniKeys(QByteArrayView lines);

/// The line of the key, or null.
const IniLine* lineOf(const IniKeys& keys, QByteArrayView key);

/// A section's key lines in file order, duplicates included, for the few keys of an object.
std::vector<IniLine> iniLines(QByteArrayView lines);
/// The first line of the key, or null.
const IniLine* lineOf(const std::vector<IniLine>& lines, QByteArrayView key);

/// A text with an index of its sections, for many look-ups.
class IniSections {
 public:
  explicit IniSections(IniText text);
  const IniText& text() const { return text_; }
  /// The lines of that section up to the next one; a null view without it.
  QByteArrayView lines(QByteArrayView name) const;
  /// The names of the sections in file order, each once.
  const std::vector<QByteArrayView>& names() const { return names_; }

 private:
  IniText text_;
  QHash<IniName, QByteArrayView> sections_;  ///< in the text, as the names
  std::vector<QByteArrayView> names_;
};

}  // namespace platform
