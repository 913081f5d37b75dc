#include "toolwindow/saved_marking.h"

#include <QDeadlineTimer>
#include <QPointer>

#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/work_queue.h"
#include "editing/saved_state.h"
#include "editing/session.h"
#include "platform/status_line.h"

namespace toolwindow {
namespace {

constexpr int LongestPart = 10;  // milliseconds

}  // namespace

/// One marking of all rows: first those of the grid, then the objects.
struct SavedMarking::Pass {
  Pass(const editing::Session& session, controls::ListView& grid, controls::ListBox& objects)
      : saved_(session.state()), keys_(saved_, session.object()), grid_(grid), objects_(objects) {}

  /// Marks the next row; false without one.
  bool markNext() {
    if (gridRow_ < grid_.rowCount()) {
      markKey(gridRow_++);
    } else if (objectRow_ < objects_.ListCount()) {
      const bool differs = saved_.differsIn(objects_.List(objectRow_));
      objects_.setBold(objectRow_, differs ? QStringLiteral("differs from the saved state") : QString());
      ++objectRow_;
    } else {
      return false;
    }
    return true;
  }

 private:
  void markKey(int row) {
    const QString key = themefiles::keyIdentity(grid_.rowText(row));
    const auto color = keys_.colorOf(key, themefiles::groupOf(key));
    const auto value = keys_.takeOf(key, themefiles::groupOf(key));
    QStringList told;
    if (value) told += QStringLiteral("saved: ") + value->told;
    if (color) told += color->told;
    grid_.setSaved(row, told.join(u'\n'));
  }

  const editing::SavedState saved_;
  editing::SavedObject keys_;
  controls::ListView& grid_;
  controls::ListBox& objects_;
  int gridRow_ = 0;
  int objectRow_ = 0;
};

SavedMarking::SavedMarking(const ToolServices& services, controls::ListView& values, controls::ListBox& objects)
    : services_(services), values_(values), objects_(objects) {
  idle_.setSingleShot(true);
  connect(&idle_, &QTimer::timeout, this, &SavedMarking::goOn);
  connect(&services.session, &editing::Session::differencesDue, this, &SavedMarking::begin);
  connect(&services.session, &editing::Session::ended, this, [this] { services_.session.disconnect(this); });
}

SavedMarking::~SavedMarking() = default;

void SavedMarking::begin() {
  pass_.reset();
  idle_.start();
}

void SavedMarking::goOn() {
  if (!services_.queue.busy()) {
    if (!platform::guardedSilently([this] { markRows(); })) pass_.reset();
    return;
  }
  pass_.reset();
  services_.queue.runOutside([open = QPointer<SavedMarking>(this)] {
    if (open) open->begin();
  });
}

void SavedMarking::markRows() {
  if (!pass_) pass_ = std::make_unique<Pass>(services_.session, values_, objects_);
  const QDeadlineTimer end(LongestPart);
  while (pass_->markNext()) {
    if (!end.hasExpired()) continue;
    idle_.start();
    return;
  }
  pass_.reset();
}

}  // namespace toolwindow
