#include "controls/work_queue.h"

#include <utility>

#include <QCoreApplication>
#include <QScopeGuard>

namespace controls {

void WorkQueue::setWorks(Work choose, Work draw) {
  choose_ = std::move(choose);
  draw_ = std::move(draw);
}

void WorkQueue::choose() {
  if (afterwork_) forework_ = std::exchange(afterwork_, {});
  noted_ = Stage::Choose;
  work();
}

void WorkQueue::draw() {
  if (afterwork_) forework_ = std::exchange(afterwork_, {});
  if (noted_ == Stage::None) noted_ = Stage::Draw;
  work();
}

void WorkQueue::work() {
  if (busy()) return;
  const auto commands = qScopeGuard([this] {
    if (!commands_.empty()) postCommands();
  });
  while (noted_ != Stage::None && !leaving_) {
    // A choice ends in a draw: a draw noted while the list still fills is that one.
    if (forework_) std::exchange(forework_, {})();
    running_ = std::exchange(noted_, noted_ == Stage::Choose ? Stage::Draw : Stage::None);
    try {
      running_ == Stage::Choose ? choose_() : draw_();
    } catch (const WorkAbandoned&) {
      if (leaving_ && noted_ < running_) noted_ = running_;
    } catch (...) {
      running_ = Stage::None;
      throw;
    }
    running_ = Stage::None;
  }
  if (afterwork_ && noted_ == Stage::None) std::exchange(afterwork_, {})();
}

void WorkQueue::yield() {
  const Stage caller = running_;
  Q_EMIT yielding();
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  if (leaving_ || noted_ == Stage::Choose || (caller == Stage::Draw && noted_ == Stage::Draw)) throw WorkAbandoned{};
}

void WorkQueue::runOutside(Work command, bool leaving) {
  commands_.push_back(std::move(command));
  if (busy() || commanding_) {
    leaving_ = leaving_ || leaving;
    return;
  }
  runCommands();
}

void WorkQueue::setAfterwork(Work afterwork) {
  afterwork_ = std::move(afterwork);
}

void WorkQueue::forget() {
  noted_ = Stage::None;
  forework_ = {};
  afterwork_ = {};
}

void WorkQueue::postCommands() {
  QMetaObject::invokeMethod(this, &WorkQueue::runCommands, Qt::QueuedConnection);
}

void WorkQueue::runCommands() {
  if (busy() || commanding_) return;
  commanding_ = true;
  const auto done = qScopeGuard([this] { commanding_ = false; });
  while (!commands_.empty()) {
    const Work command = std::move(commands_.front());
    commands_.pop_front();
    leaving_ = false;
    command();
  }
  work();
}

}  // namespace controls
