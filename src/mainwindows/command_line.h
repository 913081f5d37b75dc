#pragma once

#include <QString>
#include <QStringList>

namespace mainwindows {

/// What the program's command line asks for.
struct CommandLine {
  QString gameFolder;  ///< absolute, with its separator; empty when none is named
};

/// The answer to --help or --version; empty if neither is given. Works before there is an application.
QString commandLineAnswer(const QStringList& words);

/// Reads the command line; the first of `words` is the program's name. Throws platform::Failure if it is wrong.
CommandLine parseCommandLine(const QStringList& words);

}  // namespace mainwindows
