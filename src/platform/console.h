#pragma once

#include <cstdio>

#include <QString>
#include <QStringList>

/// The command line and the output of a program without windows.
namespace platform {

/// The words of the command line.
QStringList commandLineWords(int argc, char** argv);

/// On Windows: has the standard outputs keep plain line ends.
void prepareOutput();

/// Whether a person reads the stream as it is written.
bool isTerminal(std::FILE* stream);

/// The text with a "?" for each letter that would end the line or steer the terminal. Names of files and what stands in
/// them may hold such letters.
QString onOneLine(QString text);

/// Writes the text to a standard output, as UTF-8. A program with windows has none on Windows unless it is sent to a
/// file or a pipe: then the text goes to the console that the program was started from, if there is one.
void write(std::FILE* stream, const QString& text);

/// Writes text of the program's own and a line end.
void print(std::FILE* stream, const QString& text);

}  // namespace platform
