#include "controls/work_queue.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QScopeGuard>

namespace controls {

void WorkQueue::choose() {
  want(Stage::Choose);
}

void WorkQueue::draw() {
  want(Stage::Draw);
}

void WorkQueue::want(Stage stage) {
  if (closing_) overdueClosing_ = std::exchange(closing_, {});
  wanted_ = std::max(wanted_, stage);
  work();
}

void WorkQueue::work() {
  if (busy()) return;
  const auto commands = qScopeGuard([this] {
    if (!commands_.empty()) postCommands();
  });
  while (wanted_ != Stage::None && !givesWay_) {
    if (overdueClosing_) std::exchange(overdueClosing_, {})();
    const Stage stage = wanted_;
    // A choice ends in a drawing. One that is asked for while the list fills is the same drawing.
    wanted_ = stage == Stage::Choose ? Stage::Draw : Stage::None;
    run(stage);
  }
  if (closing_ && wanted_ == Stage::None) std::exchange(closing_, {})();
}

void WorkQueue::run(Stage stage) {
  running_ = stage;
  const auto done = qScopeGuard([this] { running_ = Stage::None; });
  try {
    const Work& operation = stage == Stage::Choose ? operations_.choose : operations_.draw;
    operation();
  } catch (const WorkAbandoned&) {
    if (givesWay_) wanted_ = std::max(wanted_, stage);
  }
}

void WorkQueue::yield() {
  const Stage caller = running_;
  Q_EMIT yielding();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  const bool drawnAnew = caller == Stage::Draw && wanted_ == Stage::Draw;
  if (givesWay_ || wanted_ == Stage::Choose || drawnAnew) throw WorkAbandoned{};
}

void WorkQueue::runOutside(Work command, RunningWork running) {
  commands_.push_back(std::move(command));
  if (busy() || runningCommand_) {
    givesWay_ = givesWay_ || running == RunningWork::GivesWay;
    return;
  }
  runCommands();
}

void WorkQueue::forget() {
  wanted_ = Stage::None;
  overdueClosing_ = {};
  closing_ = {};
}

void WorkQueue::postCommands() {
  QMetaObject::invokeMethod(this, &WorkQueue::runCommands, Qt::QueuedConnection);
}

void WorkQueue::runCommands() {
  if (busy() || runningCommand_) return;
  runningCommand_ = true;
  const auto done = qScopeGuard([this] { runningCommand_ = false; });
  while (!commands_.empty()) {
    const Work command = std::move(commands_.front());
    commands_.pop_front();
    givesWay_ = false;
    command();
  }
  work();
}

}  // namespace controls
