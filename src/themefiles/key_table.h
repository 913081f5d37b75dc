#pragma once

#include <optional>
#include <span>

#include <QString>
#include <QStringView>

/// The keys that the tool window can edit. Any other key of a section can be read in the grid only.
namespace themefiles {

enum class KeyGroup { WholeNumber, Alignment, Font, Switch, Direction, Type, Text, Color, Texture, Decimal };

/// The editor frames of the tool window.
enum class EditorFrame { Numbers, FloatNumbers, Selection, Color, Texture, Texts };

/// What an editor needs to know of a group. An entry of a list stands for the value in front of its "=".
struct GroupRow {
  KeyGroup group;
  EditorFrame frame;
  std::span<const QStringView> entries;  ///< of the frame Selection, else empty
};

/// A key as its group is looked up by: without blanks at its ends, in upper case.
QString keyIdentity(const QString& key);

/// The group of a key, given by its identity; none for a key outside the table.
std::optional<KeyGroup> groupOf(QStringView key);

const GroupRow& rowOf(KeyGroup group);

}  // namespace themefiles
