#include "controls/idle_steps.h"

#include <utility>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QPointer>

#include "controls/work_queue.h"
#include "platform/status_line.h"

namespace controls {
namespace {

constexpr int LongestPart = 10;  // milliseconds

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

}  // namespace

IdleSteps::IdleSteps(WorkQueue& queue, std::function<bool()> step, int quiet)
    : queue_(queue), step_(std::move(step)), quiet_(quiet) {
  idle_.setSingleShot(true);
  connect(&idle_, &QTimer::timeout, this, &IdleSteps::goOn);
  if (quiet_ > 0) QCoreApplication::instance()->installEventFilter(this);
}

bool IdleSteps::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (isInput(event->type())) input_.start();
  return false;
}

void IdleSteps::goOn() {
  if (input_.isValid() && input_.elapsed() < quiet_) return idle_.start(quiet_ - static_cast<int>(input_.elapsed()));
  if (!queue_.busy()) return doSteps();
  queue_.runOutside([open = QPointer<IdleSteps>(this)] {
    if (open) open->begin();
  });
}

void IdleSteps::doSteps() {
  bool more = true;
  const QDeadlineTimer end(LongestPart);
  const QPointer<IdleSteps> alive(this);
  const bool done = platform::guardedSilently([&] {
    while (alive && more && !end.hasExpired()) more = step_();
  });
  if (alive && done && more) begin();
}

}  // namespace controls
