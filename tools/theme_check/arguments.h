#pragma once

#include <QStringList>

#include "themecheck/game_check.h"

namespace themechecktool {

/// What the command line asks for.
struct Arguments {
  themecheck::Request request;
  QString ignored;  ///< the file with the patterns of findings that are left out; empty for none
  bool json = false;
  bool strict = false;  ///< warnings count as errors do
  QString answer;       ///< usage or version, when that is all that is wanted
};

/// Throws platform::Failure for a command line that isn't one of this tool. The first of `words` is the program.
Arguments parseArguments(const QStringList& words);

}  // namespace themechecktool
