#pragma once

#include <QEventLoop>
#include <QTimer>

namespace screenshots {

/// Lets the program run on for some milliseconds.
inline void waitFor(int milliseconds, QEventLoop::ProcessEventsFlags events = QEventLoop::AllEvents) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec(events);
}

}  // namespace screenshots
