#pragma once

#include <QString>
#include <QStringList>

namespace mainwindows {

/// What the program's command line asks for.
struct CommandLine {
  QString gameFolder;  ///< absolute, with its separator; empty when none is named
};

/// What --help or --version answers; empty when neither is asked for. Needs no application.
QString commandLineAnswer(const QStringList& words);

/// Throws platform::Failure for a command line that isn't one of this program. The first of `words` is the program.
CommandLine parseCommandLine(const QStringList& words);

}  // namespace mainwindows
