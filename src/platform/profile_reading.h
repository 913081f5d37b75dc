#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

/// Reads ini files as bytes: nothing here touches a file or keeps state between calls. The rules:
/// - Names of sections and keys are compared regardless of case, within the code page.
/// - Of equal names the first section counts, and in it the first key.
/// - "=" separates key and value. ";" starts a comment line, "#" doesn't.
/// - Blanks and tabs around names and values in the file are ignored, and blanks around names that a caller gives.
/// - Lines end in CR LF, LF or CR.
namespace platform {

/// The value of a key without blanks and tabs at its ends and without one pair of quotation marks around it. None if
/// the section or the key is missing.
std::optional<QByteArray> findProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key);

/// The same in two steps, for several keys of one section: the file from the section's first line on, and a key's value
/// in it.
std::optional<QByteArrayView> findProfileSection(QByteArrayView file, QByteArrayView section);
std::optional<QByteArray> findProfileValue(QByteArrayView lines, QByteArrayView key);

/// All keys of the section in file order, duplicates included, each followed by a NUL. Empty without the section.
QByteArray listProfileKeys(QByteArrayView file, QByteArrayView section);

/// A key line of a section.
struct ProfileLine {
  QByteArrayView key;
  QByteArrayView value;  ///< without blanks at its ends, with its quotation marks
  QByteArrayView line;   ///< the whole line without its line end
};

/// The value without one pair of equal quotation marks around it.
QByteArrayView unquoted(QByteArrayView value);

/// A section's key lines by the key in upper case, for many look-ups. Of duplicates it has the first.
using ProfileKeys = QHash<QByteArray, ProfileLine>;
ProfileKeys profileKeys(QByteArrayView lines);

/// The line of the key, or null.
const ProfileLine* lineOf(const ProfileKeys& keys, QByteArrayView key);

/// An index of a file's sections, for many look-ups. It refers to the file's bytes.
class ProfileSections {
 public:
  explicit ProfileSections(QByteArrayView file);
  /// The lines of that section up to the next one; empty without it.
  QByteArrayView lines(QByteArrayView name) const;

 private:
  QHash<QByteArray, QByteArrayView> sections_;  ///< by the name in upper case
};

}  // namespace platform
