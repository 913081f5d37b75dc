#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>

/// Changes an ini file's bytes by the rules in ini_reading.h. The rest of the file stays byte for byte the same.
namespace platform {

/// Sets a key's value and returns the new file:
/// - A key that exists keeps its line: only what follows the "=" is replaced.
/// - A new key goes after the last key line of its section.
/// - A new section goes at the end of the file.
/// New lines end as the file's first line does, or in CR LF if it has none.
/// None if nothing changes, or if the line could never be found again: a text with a line end or NUL, a section's name
/// with "]", a name with a tab at an end, an empty key, or one that contains "=" or starts with ";" or "[".
std::optional<QByteArray> setIniValue(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                      QByteArrayView value);

/// The same for the key's whole line. `line` has no line end.
std::optional<QByteArray> setIniLine(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                     QByteArrayView line);

/// A key's whole line, without its line end.
struct IniSetting {
  QByteArray section;
  QByteArray key;
  QByteArray line;
};

/// Sets whole lines, of which no two are of the same key, by the same rules, and returns the new file. New lines of a
/// section come in the order in which they are given. A line that could never be found again is left out.
QByteArray setIniLines(const QByteArray& file, const std::vector<IniSetting>& settings);

/// Removes the key's line and returns the new file. None if there is no such key.
std::optional<QByteArray> removeIniKey(QByteArrayView file, QByteArrayView section, QByteArrayView key);

}  // namespace platform
