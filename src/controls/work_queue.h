#pragma once

#include <deque>
#include <functional>
#include <utility>

#include <QObject>

namespace controls {

/// Thrown out of a yield to unwind the running work: a later wish has made it pointless. Never leaves the work queue.
struct WorkAbandoned {};

/// What becomes of the running work when a command waits for it.
enum class RunningWork { Finishes, GivesWay };

/// Keeps the long work (the choice of a screen, the drawing of one) from nesting while it lets events through.
/// Of the wishes that come in the meantime the latest wins, and a choice, which ends in a draw of its own, outranks a
/// draw. What can't run inside a pass (dialogs, closing) waits until the work has unwound.
class WorkQueue : public QObject {
  Q_OBJECT

 public:
  using Work = std::function<void()>;
  /// The long work itself; both call yield.
  struct Operations {
    Work choose;  ///< fills the tag list of the chosen screen
    Work draw;    ///< draws it
  };

  void setOperations(Operations operations) { operations_ = std::move(operations); }
  const Operations& operations() const { return operations_; }

  /// Chooses the screen, then draws it: now, or after the running work when there is one.
  void choose();
  /// Draws the screen: now, or after the running work.
  void draw();
  /// Serves pending events. Throws WorkAbandoned when the work that called it is to be given up.
  void yield();

  bool busy() const { return running_ != Stage::None; }

  /// Runs `command` at once when no work is running and no command either, else as soon as that is over.
  /// Work that gives way is given up at its next yield. It is begun anew after the command, unless the command called
  /// forget.
  void runOutside(Work command, RunningWork running = RunningWork::Finishes);
  /// Runs `closing` once, at the end of the work that is running now and before any other.
  void runBehind(Work closing) { closing_ = std::move(closing); }
  /// Drops the work that is still wanted, and what was to run behind it: what they were for is gone.
  void forget();

 Q_SIGNALS:
  /// A yield begins: pending events are about to be served.
  void yielding();

 private:
  /// A later one includes the earlier ones: a choice ends in a drawing.
  enum class Stage { None, Draw, Choose };

  void want(Stage stage);
  void work();
  void run(Stage stage);
  void runCommands();
  void postCommands();

  Operations operations_;
  Stage running_ = Stage::None;
  Stage wanted_ = Stage::None;  ///< comes next
  Work closing_;                ///< runs behind the running work
  Work overdueClosing_;         ///< the same of work that was given up for a later wish: runs before the next work
  std::deque<Work> commands_;   ///< wait for the end of the running work or command
  bool runningCommand_ = false;
  bool givesWay_ = false;  ///< the running work, for the first of the commands
};

}  // namespace controls
