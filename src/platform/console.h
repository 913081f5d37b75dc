#pragma once

#include <cstdio>

#include <QString>
#include <QStringList>

/// The command line and the output of a program without windows.
namespace platform {

/// The words of the command line.
QStringList commandLineWords(int argc, char** argv);

/// On Windows: has the standard outputs take UTF-8 with plain line ends.
void prepareOutput();

/// The text with a "?" for each letter that would end the line or steer the terminal. Names of files and what stands in
/// them may hold such letters.
QString onOneLine(QString text);

/// Prints text of the program's own and a line end, as UTF-8.
void print(std::FILE* stream, const QString& text);

}  // namespace platform
