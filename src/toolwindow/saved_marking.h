#pragma once

#include <memory>

#include <QObject>
#include <QTimer>

#include "toolwindow/tool_services.h"

namespace controls {
class ListBox;
class ListView;
}  // namespace controls

namespace toolwindow {

/// Marks what differs from the saved state in bold: rows of the grid, whose tool tips tell the saved values, and the
/// objects that have such a row. It marks when the program is idle, a few rows at a time, so that events come between
/// them, and begins anew when the session tells that there may be other differences. A working copy that can't be read
/// ends it silently.
class SavedMarking : public QObject {
 public:
  SavedMarking(const ToolServices& services, controls::ListView& values, controls::ListBox& objects);
  ~SavedMarking() override;
  Q_DISABLE_COPY_MOVE(SavedMarking)

 private:
  struct Pass;

  void begin();
  void goOn();
  void markRows();

  const ToolServices& services_;
  controls::ListView& values_;
  controls::ListBox& objects_;
  QTimer idle_;
  std::unique_ptr<Pass> pass_;  ///< the marking that has begun
};

}  // namespace toolwindow
