#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "editing/session.h"
#include "themefiles/key_table.h"

/// The keys that a theme's texts and textures refer to. Adding and removing one write into the working copy of the
/// language or the skin at once.
namespace editing {

enum class ReferenceKind { Text, Texture };

/// Where the keys of a kind stand.
struct ReferenceFile {
  QString themefiles::ThemePaths::*copy;
  QString section;
};
ReferenceFile fileOf(ReferenceKind kind);

/// The kind of the references that a frame edits; none for values.
std::optional<ReferenceKind> referenceOf(themefiles::EditorFrame frame);

/// The keys in file order, as far as a list takes them.
QStringList referenceKeys(const themefiles::ModuleState& state, ReferenceKind kind);

/// What a key stands for; none, with a report, if that can't be read or is too long for an editor.
std::optional<QString> referenceContent(const Session& session, ReferenceKind kind, const QString& key);

/// Adds a key with an empty value.
enum class KeyAdding { Done, Failed, Exists };
KeyAdding addReferenceKey(Session& session, ReferenceKind kind, const QString& key);

/// Removes a key. Returns whether that succeeded.
bool removeReferenceKey(Session& session, ReferenceKind kind, const QString& key);

}  // namespace editing
