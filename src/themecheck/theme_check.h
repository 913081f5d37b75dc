#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "themecheck/checked_theme.h"
#include "themecheck/findings.h"

/// What is wrong in a game's themes, and what nothing uses: each theme with all of its skins and all languages. It asks
/// the program's own readers and its renderer. Nothing is written.
namespace themecheck {

/// What is to be checked.
struct Request {
  QString gameFolder;  ///< as the system names it
  QStringList themes;  ///< all of them without a name
  QString skin;        ///< the only one; empty for all
  QString language;    ///< the same
};

/// All findings, by file and line. Throws platform::Failure when the folder holds no theme, or not what is asked for.
std::vector<Finding> checkGame(const Request& request, const Progress& progress);

}  // namespace themecheck
