#include "modal_script.h"

#include <QApplication>
#include <QElapsedTimer>

#include "platform/failure.h"

namespace screenshots {
namespace {

constexpr int Interval = 150;       // ms
constexpr int LongestWait = 10000;  // ms

}  // namespace

void ModalScript::run(std::deque<ModalStep> steps, const std::function<void()>& cause) {
  steps_ = std::move(steps);
  seen_ = nullptr;
  const int timer = startTimer(Interval);
  cause();
  QElapsedTimer waiting;
  waiting.start();
  while (!steps_.empty() && waiting.elapsed() < LongestWait)
    QApplication::processEvents(QEventLoop::AllEvents, Interval);
  killTimer(timer);
  if (!steps_.empty())
    throw platform::Failure(QStringLiteral("the dialog for '%1' didn't come").arg(steps_[0].picture));
}

void ModalScript::timerEvent(QTimerEvent* /*event*/) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  // A dialog seen for the first time still has to be painted.
  if (dialog == nullptr || dialog != seen_ || steps_.empty()) {
    seen_ = dialog;
    return;
  }
  const ModalStep step = steps_.front();
  steps_.pop_front();
  seen_ = nullptr;
  if (!step.picture.isEmpty()) save_(*dialog, step.picture);
  step.answer(*dialog);
}

}  // namespace screenshots
