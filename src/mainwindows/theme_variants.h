#pragma once

#include <vector>

#include <QStringList>

#include "themefiles/module_state.h"

namespace mainwindows {

// What goes over the whole theme does so when the user has been still for so many milliseconds, with a store of
// prepared pictures of its own.
inline constexpr int QuietTime = 300;
inline constexpr qsizetype WholeThemePictures = qsizetype(32) * 1024 * 1024;

/// A file of the open theme's game, where it is to be read now: the open ones are their working copies.
struct ReadFile {
  QString name;  ///< of the theme, the skin or the language
  QString path;
  QString shown;  ///< from the game folder on: "Skins/Stagelight/Dusk.ini"
};

/// The files of the open theme: it, all its skins and all languages.
struct OpenFiles {
  explicit OpenFiles(const themefiles::ThemePaths& paths);

  ReadFile theme;
  ReadFile skin;      ///< the open one
  ReadFile language;  ///< the open one
  std::vector<ReadFile> skins;
  std::vector<ReadFile> languages;
};

}  // namespace mainwindows
