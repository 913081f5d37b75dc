#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

/// Changes of an ini file's text, by the rules in profile_reading.h. All else of the file stays as it is.
namespace platform {

/// The file with the key's value replaced in place (all up to the "=" and the line's own end stay), or the key added
/// behind the last key line of its section, or the section added at the end. New lines take the file's first line end,
/// CR LF where it has none. None when there is nothing to change in it, or when the line could never be found again (a
/// line end or NUL in a text, "]" in the section's name, a tab at an end of either name, no key, one with "=" in it or
/// ";" or "[" at its head).
std::optional<QByteArray> setProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                          QByteArrayView value);

/// The same with the key's whole line, `line` having no end of its own.
std::optional<QByteArray> setProfileLine(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                         QByteArrayView line);

/// The file without the key's line; none when there is no such key.
std::optional<QByteArray> removeProfileKey(QByteArrayView file, QByteArrayView section, QByteArrayView key);

}  // namespace platform
