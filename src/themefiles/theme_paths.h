#pragma once

#include <QStringList>

#include "themefiles/module_state.h"

/// The paths of a game's themes. A game folder ends in a separator. The name of a theme, skin or language is that of
/// its file without ".ini".
namespace themefiles {

inline const QString IniEnding = QStringLiteral(".ini");

/// The names in the order of platform::listFiles; none if the folder can't be read.
QStringList themesOf(const QString& gameFolder);
QStringList skinsOf(const QString& gameFolder, const QString& theme);
QStringList languagesOf(const QString& gameFolder);

/// The paths of the game's files, whether these exist or not.
ThemePaths pathsOf(const QString& gameFolder, const QString& theme, const QString& skin, const QString& language);

}  // namespace themefiles
