#pragma once

#include <functional>
#include <utility>

#include <QString>
#include <QStringList>

#include "platform/failure.h"

namespace windowless {

/// The exit status of a program that can't do what its command line asks for.
inline constexpr int WrongInput = 2;

/// A command line that isn't one of the program. Its usage is printed, too.
struct WrongUsage : platform::Failure {
  WrongUsage(QString description, QString text) : Failure(std::move(description)), usage(std::move(text)) {}
  QString usage;
};

/// Runs a program that draws with no display, and with no setting of a desktop, by the words of its command line;
/// gives its exit status. A platform::Failure goes to the standard error output behind the program's name, on one line;
/// so does output that can't be written in full. The toolkit's own messages are dropped.
int runTool(const QString& name, int argc, char** argv, const std::function<int(const QStringList& words)>& run);

}  // namespace windowless
