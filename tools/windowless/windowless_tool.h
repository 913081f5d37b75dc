#pragma once

#include <cstdio>
#include <functional>

#include <QString>
#include <QStringList>

namespace windowless {

/// The exit status of a program that can't do what its command line asks for.
inline constexpr int WrongInput = 2;

/// A line on the stream, in the system's own code.
void print(std::FILE* stream, const QString& text);

/// Runs a program that draws with no display, and with no setting of a desktop, by the words of its command line;
/// gives its exit status. A platform::Failure goes to the standard error output behind the program's name.
int runTool(const QString& name, int argc, char** argv, const std::function<int(const QStringList& words)>& run);

}  // namespace windowless
