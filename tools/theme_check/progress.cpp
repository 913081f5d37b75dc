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
  if (shown_) std::fputs("\r\033[K", stderr);
}

void ProgressLine::show(const QString& text) {
  if (!onTerminal_ || sinceStart_.elapsed() < LongRun) return;
  shown_ = true;
  std::fprintf(stderr, "\r\033[K%s", platform::onOneLine(text).toUtf8().constData());
  std::fflush(stderr);
}

}  // namespace themechecktool
