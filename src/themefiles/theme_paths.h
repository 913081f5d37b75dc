#pragma once

#include <QStringList>

#include "themefiles/module_state.h"

/// Where the files of a game's themes lie. A game folder ends in a separator; the names of themes, skins and languages
/// are those of their files without ".ini".
namespace themefiles {

/// Names in the order of platform::listFiles; none where the folder can't be read.
QStringList themesOf(const QString& gameFolder);
QStringList skinsOf(const QString& gameFolder, const QString& theme);
QStringList languagesOf(const QString& gameFolder);

/// The game's own files, whether they are there or not.
ThemePaths pathsOf(const QString& gameFolder, const QString& theme, const QString& skin, const QString& language);

}  // namespace themefiles
