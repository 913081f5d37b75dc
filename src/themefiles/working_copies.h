#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "platform/status_line.h"
#include "themefiles/ini_access.h"
#include "themefiles/module_state.h"

/// The working copies of a theme's three files, which take all edits until Save.
namespace themefiles {

/// Added to the whole name of a file, it names the working copy.
inline constexpr QStringView WorkingEnding = u".tmp";

/// Opens a theme: copies its theme, skin and language file to working copies, in this order, and sets the state's paths
/// to the copies, and ThemeOpened. An older working copy that differs from its file is kept as ".old", with a note to
/// `status`. If a copy fails, no further one is made; the state and the working copies of an open theme stay as they
/// were, and platform::Failure is thrown.
void MakeWorkingCopies(ModuleState& state, const ThemePaths& chosen, platform::StatusLine& status);

/// Sets a value in a working copy of the open theme, as changedText does. `status` gets a note in two cases: a copy
/// that is missing or empty is restored with the edit in it; if another program has changed the copy, the edit goes
/// into the changed text, and what this program wrote last is kept as ".old" (see kept_files.h). Throws
/// platform::Failure if the edit can't be written, or isn't found when the file is read again.
void putInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& Section, const QString& Key,
               const std::optional<QString>& Value, platform::StatusLine& status);

/// A key of a section, and its value.
struct KeyValue {
  QString section;
  QString key;
  QString value;
};

/// Sets several values by a single write: either all of them are written, or none.
void putValuesInCopy(ModuleState& state, QString ThemePaths::*copy, const std::vector<KeyValue>& values,
                     platform::StatusLine& status);

/// Like putValuesInCopy, but sets whole lines.
void putLinesInCopy(ModuleState& state, QString ThemePaths::*copy, const std::vector<KeyedLine>& lines,
                    platform::StatusLine& status);

/// The text of a working copy that the next edit starts from: where the file is missing or empty, what this program
/// wrote last. Throws platform::Failure if the file can't be read.
QByteArray presentText(const ModuleState& state, QString ThemePaths::*copy);

/// Makes a working copy of the open theme anew if it is missing or empty, as an edit would, with a note to `status`.
void restoreCopy(ModuleState& state, QString ThemePaths::*copy, platform::StatusLine& status);

/// The index of a file in the state's arrays: 0 for the theme, 1 for the skin, 2 for the language.
size_t copyNumber(QString ThemePaths::*copy);

/// Saves: copies the working copies over theme, skin and language file, in this order, and clears Changed. A file that
/// another program has changed since Open or the last Save is kept as ".bak", with a note to `status`. A working copy
/// that another program has changed or removed is handled as by putInCopy. If a copy fails, no further one is made,
/// Changed stays, and platform::Failure is thrown.
void saveWorkingCopies(ModuleState& state, platform::StatusLine& status);

/// Resets the state to no open theme. The working copies stay on disk.
void forgetTheme(ModuleState& state);

}  // namespace themefiles
