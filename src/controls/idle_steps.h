#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace controls {

class WorkQueue;

/// Work in short steps that is done when the program is idle: not in the middle of other work, and a few steps at a
/// time, so that events come between them.
class IdleSteps : public QObject {
 public:
  /// `step` does one; it is false when there is none left. A platform::Failure in it ends the work silently. With a
  /// `quiet` time in milliseconds no step begins so soon after a key or a move of the mouse.
  IdleSteps(WorkQueue& queue, std::function<bool()> step, int quiet = 0);

  /// Has the steps done, as soon as nothing else is to be done.
  void begin() { idle_.start(0); }
  void stop() { idle_.stop(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void goOn();
  void doSteps();

  WorkQueue& queue_;
  std::function<bool()> step_;
  int quiet_;
  QElapsedTimer input_;  ///< since the user has done something
  QTimer idle_;
};

}  // namespace controls
