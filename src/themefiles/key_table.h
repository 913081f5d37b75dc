#pragma once

#include <optional>
#include <span>

#include <QString>
#include <QStringView>

/// The keys that the tool window can edit. The grid shows all others, too.
namespace themefiles {

enum class KeyGroup { WholeNumber, Alignment, Font, Switch, Direction, Type, Text, Color, Texture, Decimal };

/// The editor frames of the tool window.
enum class EditorFrame { Numbers, FloatNumbers, Selection, Color, Texture, Texts };

/// How a group of keys is edited. An entry of a list starts with its value and "=".
struct GroupRow {
  KeyGroup group;
  EditorFrame frame;
  std::span<const QStringView> entries;  ///< for the frame Selection, else empty
};

/// The form of a key for groupOf: in upper case and without blanks at its ends.
QString keyIdentity(const QString& key);

/// The group of a key, given by its keyIdentity; none for other keys.
std::optional<KeyGroup> groupOf(QStringView key);

const GroupRow& rowOf(KeyGroup group);

}  // namespace themefiles
