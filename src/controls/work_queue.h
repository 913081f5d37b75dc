#pragma once

#include <deque>
#include <functional>

#include <QObject>

namespace controls {

/// Thrown out of a yield to unwind the running work: a later wish has made it pointless. Never leaves the work queue.
struct WorkAbandoned {};

/// Keeps the long work (the choice of a screen, the drawing of one) from nesting while it lets events through.
/// Of the wishes that come in the meantime the latest wins, and a choice, which ends in a draw of its own, outranks a
/// draw. What can't run inside a pass (dialogs, closing) waits until the work has unwound.
class WorkQueue : public QObject {
  Q_OBJECT

 public:
  using Work = std::function<void()>;

  /// `choose` fills the tag list of the chosen screen, `draw` draws it; both call Yield.
  void setWorks(Work choose, Work draw);

  /// Chooses the screen, then draws it: now, or after the running work when there is one.
  void choose();
  /// Draws the screen: now, or after the running work.
  void draw();
  /// Serves pending events. Throws WorkAbandoned when the work that called it is to be given up.
  void yield();

  bool busy() const { return running_ != Stage::None; }

  /// Runs `command` at once when no work is running and no command either, else as soon as that is over.
  /// With `leaving` the running work is given up at its next yield; it is taken up anew after the command unless the
  /// command called Forget.
  void runOutside(Work command, bool leaving = false);
  /// Runs once behind the work that is running now; work that is wished for later begins after it.
  void setAfterwork(Work afterwork);
  /// Drops noted work and afterwork: what they were for is gone.
  void forget();

 Q_SIGNALS:
  /// A yield begins: pending events are about to be served.
  void yielding();

 private:
  enum class Stage { None, Draw, Choose };

  void work();
  void runCommands();
  void postCommands();

  Work choose_;
  Work draw_;
  Stage running_ = Stage::None;
  Stage noted_ = Stage::None;
  bool leaving_ = false;
  bool commanding_ = false;
  std::deque<Work> commands_;
  Work forework_;  ///< the afterwork of work that was given up for what comes next
  Work afterwork_;
};

}  // namespace controls
