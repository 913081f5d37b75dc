#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QString>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

/// The working copies that stand in for a theme's three files while it is open.
namespace themefiles {

/// Behind the whole name of a file: its working copy.
inline constexpr QStringView WorkingEnding = u".tmp";

/// Copies theme, skin and language file of `chosen` to their working copies, in this order, and opens the theme:
/// the state's paths name the copies, ThemeOpened is set. An older working copy that differs from its file is kept
/// beside as ".old", and `status` told so. Throws platform::Failure when a copy fails; the copies behind it aren't made
/// then, the state stays as it was, and so do the working copies of a theme that is open.
void MakeWorkingCopies(ModuleState& state, const ThemePaths& chosen, platform::StatusLine& status);

/// changedText on a working copy of the open theme. One that is gone or empty is made anew with the edit in it. Of one
/// that another program has written since this one did (a second editor of the theme), this program's own text is kept
/// beside as ".old" (see kept_files.h); the edit goes into what stands there. `status` is told of that. Throws
/// platform::Failure when the edit can't be written, or isn't there when the file is read again.
void putInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& Section, const QString& Key,
               const std::optional<QString>& Value, platform::StatusLine& status);

/// changedText for one value after the other, by a single write: keys of one section with their values. All of them are
/// written, or none.
void putValuesInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& section,
                     const std::vector<std::pair<QString, QString>>& values, platform::StatusLine& status);

/// The same with changedLine.
void putLineInCopy(ModuleState& state, QString ThemePaths::*copy, const QString& section, const QString& key,
                   const QByteArray& line, platform::StatusLine& status);

/// Where the arrays of the state have a file: 0 the theme's, 1 the skin's, 2 the language's.
size_t copyNumber(QString ThemePaths::*copy);

/// Copies the three working copies over their files, in the order theme, skin, language, and clears Changed. A file
/// that has changed on disk since it was opened or saved last is kept beside as ".bak", a working copy that another
/// program has changed or removed is minded as by putInCopy, and `status` told so. Throws platform::Failure when a copy
/// fails; those behind it aren't made then, and Changed stays.
void saveWorkingCopies(ModuleState& state, platform::StatusLine& status);

/// Takes the state back to no theme: paths, colours of the theme and screens emptied. The working copies stay on disk.
void forgetTheme(ModuleState& state);

}  // namespace themefiles
