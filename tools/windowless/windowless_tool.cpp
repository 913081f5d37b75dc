#include "windowless_tool.h"

#include <csignal>

#include <QGuiApplication>

#include "platform/console.h"

namespace windowless {
namespace {

using platform::onOneLine;
using platform::print;

/// They are about a desktop that isn't there, and about pictures, of which the program tells itself.
void dropMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) print(stderr, onOneLine(text));
}

/// Runs the program, and makes sure that all of its output is written.
int runAndFlush(const std::function<int(const QStringList& words)>& run, const QStringList& words) {
  const int status = run(words);
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    throw platform::Failure(QStringLiteral("the output can't be written"));
  }
  return status;
}

}  // namespace

int runTool(const QString& name, int argc, char** argv, const std::function<int(const QStringList& words)>& run) {
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);  // a reader that has ended is a failure to write
#endif
  qInstallMessageHandler(dropMessage);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int programOnly =
      1;  // the toolkit's own options stay away from the command line, the choice of a platform among them
  const QGuiApplication application(programOnly, argv);
  platform::prepareOutput();
  const QString head = name + QStringLiteral(": ");
  try {
    return runAndFlush(run, platform::commandLineWords(argc, argv));
  } catch (const WrongUsage& failure) {
    print(stderr, head + onOneLine(failure.description()));
    print(stderr, failure.usage);
  } catch (const platform::Failure& failure) {
    print(stderr, head + onOneLine(failure.description()));
  }
  return WrongInput;
}

}  // namespace windowless
