#include "progress.h"

#include <cstdio>

#include "platform/console.h"

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace themechecktool {
namespace {

constexpr int LongRun = 1000;  // milliseconds

bool isTerminal() {
#ifdef Q_OS_WIN
  return ::_isatty(::_fileno(stderr)) != 0;
#else
  return ::isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

ProgressLine::ProgressLine() : onTerminal_(isTerminal()) {
  sinceStart_.start();
}

ProgressLine::~ProgressLine() {
  if (shown_ > 0) write({});
}

void ProgressLine::show(const QString& text) {
  if (onTerminal_ && sinceStart_.elapsed() >= LongRun) write(platform::onOneLine(text));
}

/// Blanks wipe what was there: not every terminal knows a command for that.
void ProgressLine::write(const QString& line) {
  const QString wiped = QString(shown_, u' ');
  std::fprintf(stderr, "\r%s\r%s", wiped.toUtf8().constData(), line.toUtf8().constData());
  std::fflush(stderr);
  shown_ = line.size();
}

}  // namespace themechecktool
