#include "progress.h"

#include <cstdio>

#include "platform/console.h"

namespace themechecktool {
namespace {

constexpr int LongRun = 1000;  // milliseconds

}  // namespace

ProgressLine::ProgressLine() : onTerminal_(platform::isTerminal(stderr)) {
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
  const QString wiped(shown_, u' ');
  platform::write(stderr, u'\r' + wiped + u'\r' + line);
  std::fflush(stderr);
  shown_ = line.size();
}

}  // namespace themechecktool
