#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

/// The rules of keyed access to an ini file, over the file's bytes: no file is touched here, nothing is kept between
/// calls. Names are compared by the upper case of the code page; the first section of a name and the first key in it
/// count. "=" parts key and value, ";" at the head of a line makes a comment, "#" doesn't; blanks and tabs round the
/// names, keys and values of a file don't count, and blanks round those that are asked for. Lines end in CR LF, LF or
/// CR.
namespace platform {

/// The value of the key as it stands in the file: without blanks round it, less one pair of equal quotation marks round
/// it. None without the section or key.
std::optional<QByteArray> findProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key);

/// The same in two steps, for who asks for several keys of a section: the file from behind the section's line on, and
/// the value of a key there.
std::optional<QByteArrayView> findProfileSection(QByteArrayView file, QByteArrayView section);
std::optional<QByteArray> findProfileValue(QByteArrayView lines, QByteArrayView key);

/// All keys of the section in file order, doubles too, each ended by one NUL; empty without the section.
QByteArray listProfileKeys(QByteArrayView file, QByteArrayView section);

/// A key line of a section.
struct ProfileLine {
  QByteArrayView key;
  QByteArrayView value;  ///< without blanks round it, with its quotation marks
  QByteArrayView line;   ///< as it stands, without its end
};

/// A value less one pair of equal quotation marks round it.
QByteArrayView unquoted(QByteArrayView value);

/// The lines of a section's keys (of doubles the first) by the key in upper case, for who asks for many of them.
using ProfileKeys = QHash<QByteArray, ProfileLine>;
ProfileKeys profileKeys(QByteArrayView lines);

/// The line of the key; null without one.
const ProfileLine* lineOf(const ProfileKeys& keys, QByteArrayView key);

/// The sections of a file for who asks for many: found once, as findProfileSection finds each. Views of the file.
class ProfileSections {
 public:
  explicit ProfileSections(QByteArrayView file);
  /// The lines of the section of that name, up to the next section; empty without one.
  QByteArrayView lines(QByteArrayView name) const;

 private:
  QHash<QByteArray, QByteArrayView> sections_;  ///< by the name in upper case
};

}  // namespace platform
