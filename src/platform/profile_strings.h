#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

/// The rules of keyed access to an ini file, over the file's bytes: no file is touched here, nothing is kept between
/// calls. Names are compared by the upper case of the code page; the first section of a name and the first key in it
/// count. "=" parts key and value, ";" at the head of a line makes a comment, "#" doesn't; blanks and tabs round names,
/// keys and values don't count. Lines end in CR LF, LF or CR.
namespace platform {

/// The value of the key as it stands in the file: without blanks round it, less one pair of equal quotation marks round
/// it. None without the section or key.
std::optional<QByteArray> FindProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key);

/// The same in two steps, for who asks for several keys of a section: the file from behind the section's line on, and
/// the value of a key there.
std::optional<QByteArrayView> FindProfileSection(QByteArrayView file, QByteArrayView section);
std::optional<QByteArray> FindProfileValue(QByteArrayView lines, QByteArrayView key);

/// All keys of the section in file order, doubles too, each ended by one NUL; empty without the section.
QByteArray ListProfileKeys(QByteArrayView file, QByteArrayView section);

/// The file with the key's value replaced in place (all up to the "=" and the line's own end stay), or the key added
/// behind the last key line of its section, or the section added at the end. New lines take the file's first line end,
/// CR LF where it has none. None when there is nothing to change in it, or when the line could never be found again (a
/// line end or NUL in a text, "]" in the section's name, no key, one with "=" in it or ";" or "[" at its head).
std::optional<QByteArray> SetProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                          QByteArrayView value);

/// The file without the key's line; none when there is no such key.
std::optional<QByteArray> RemoveProfileKey(QByteArrayView file, QByteArrayView section, QByteArrayView key);

}  // namespace platform
