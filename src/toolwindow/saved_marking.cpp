#include "toolwindow/saved_marking.h"

#include <QDeadlineTimer>
#include <QPointer>

#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/work_queue.h"
#include "platform/failure.h"
#include "platform/status_line.h"
#include "toolwindow/saved_state.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr int LongestPart = 10;  // milliseconds

}  // namespace

/// One marking of all rows: first those of the grid, then the objects.
struct SavedMarking::Pass {
  explicit Pass(const Form2& form)
      : saved(form.services.state), keys(saved, form.List1->Text()), grid(*form.ListView1), objects(*form.List1) {}

  /// Marks the next row; false without one.
  bool markNext() {
    if (gridRow < grid.rowCount()) {
      markKey(gridRow++);
    } else if (objectRow < objects.ListCount()) {
      const bool differs = saved.differsIn(objects.List(objectRow));
      objects.setBold(objectRow, differs ? QStringLiteral("differs from the saved state") : QString());
      ++objectRow;
    } else {
      return false;
    }
    return true;
  }

 private:
  void markKey(int row) {
    const QString key = themefiles::keyIdentity(grid.rowText(row));
    const auto value = keys.takeOf(key, themefiles::groupOf(key));
    grid.setSaved(row, value ? QStringLiteral("saved: ") + value->told : QString());
  }

  const SavedState saved;
  SavedObject keys;
  controls::ListView& grid;
  controls::ListBox& objects;
  int gridRow = 0;
  int objectRow = 0;
};

SavedMarking::SavedMarking(Form2& form) : form_(form) {
  idle_.setSingleShot(true);
  connect(&idle_, &QTimer::timeout, this, &SavedMarking::goOn);
  connect(&form, &Form2::markingAsked, this, &SavedMarking::begin);
}

SavedMarking::~SavedMarking() = default;

void SavedMarking::begin() {
  pass_.reset();
  idle_.start();
}

void SavedMarking::goOn() {
  if (!form_.services.queue.busy()) {
    if (!platform::guardedSilently([this] { markRows(); })) pass_.reset();
    return;
  }
  pass_.reset();
  form_.services.queue.runOutside([open = QPointer<SavedMarking>(this)] {
    if (open) open->begin();
  });
}

void SavedMarking::markRows() {
  if (!pass_) pass_ = std::make_unique<Pass>(form_);
  const QDeadlineTimer end(LongestPart);
  while (pass_->markNext()) {
    if (!end.hasExpired()) continue;
    idle_.start();
    return;
  }
  pass_.reset();
}

}  // namespace toolwindow
