#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "themecheck/checked_theme.h"
#include "themecheck/findings.h"

/// Finds what is wrong or unused in a game's themes, in each with all its skins and all languages. It uses the editor's
/// own readers and renderer, and writes nothing.
namespace themecheck {

/// What is to be checked.
struct Request {
  QString gameFolder;  ///< as the system names it
  QStringList themes;  ///< names of themes; empty for all
  QString skin;        ///< the only skin to check; empty for all
  QString language;    ///< the only language to check; empty for all
};

/// All findings, sorted by file and line. Throws platform::Failure if the folder has no theme, or not the one, the skin
/// or the language asked for.
std::vector<Finding> checkGame(const Request& request, const Progress& progress);

}  // namespace themecheck
