#pragma once

#include <memory>

#include <QObject>
#include <QTimer>

namespace toolwindow {

class Form2;

/// Marks what differs from the saved state in bold: rows of the grid, whose tool tips tell the saved values, and the
/// objects that have such a row. It marks when the program is idle, a few rows at a time, so that events come between
/// them, and begins anew when Form2::markLater asks for it. A working copy that can't be read ends it silently.
class SavedMarking : public QObject {
 public:
  explicit SavedMarking(Form2& form);
  ~SavedMarking() override;
  Q_DISABLE_COPY_MOVE(SavedMarking)

 private:
  struct Pass;

  void begin();
  void goOn();
  void markRows();

  Form2& form_;
  QTimer idle_;
  std::unique_ptr<Pass> pass_;  ///< the marking that has begun
};

}  // namespace toolwindow
