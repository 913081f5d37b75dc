#pragma once

#include <vector>

#include "themecheck/ini_file.h"
#include "themefiles/module_state.h"

namespace mainwindows {

// What goes over the whole theme does so when the user has been still for so many milliseconds, with a store of
// prepared pictures of its own.
inline constexpr int QuietTime = 300;
inline constexpr qsizetype WholeThemePictures = qsizetype(32) * 1024 * 1024;

/// The files of the open theme: it, all its skins and all languages. The open ones are read from their working copies;
/// findings name each from the game folder on: "Skins/Stagelight/Dusk.ini".
struct OpenFiles {
  explicit OpenFiles(const themefiles::ThemePaths& paths);

  themecheck::CheckedFile theme;
  themecheck::CheckedFile skin;      ///< the open one
  themecheck::CheckedFile language;  ///< the open one
  std::vector<themecheck::CheckedFile> skins;
  std::vector<themecheck::CheckedFile> languages;
};

}  // namespace mainwindows
