#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QStringList>

#include "themecheck/findings.h"

/// Checks the themes of a game folder.
namespace themecheck {

/// What is to be checked.
struct Request {
  QString gameFolder;  ///< as the system names it; findings name files by it
  QStringList themes;  ///< names of themes; empty for all
  QString skin;        ///< the only skin to check; empty for all
  QString language;    ///< the only language to check; empty for all
};

/// Told of each step before it is done: the theme, and what the step is about.
using Progress = std::function<void(const QString& theme, const QString& about)>;

/// All findings, sorted by file and line. Throws platform::Failure if the folder has no theme, or not the one, the skin
/// or the language asked for, or can't be listed.
std::vector<Finding> checkGame(const Request& request, const Progress& progress);

}  // namespace themecheck
