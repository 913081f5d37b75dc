#include "toolwindow/mark_placing.h"

#include <QPointer>

#include "controls/work_queue.h"
#include "drawing/surface.h"
#include "platform/status_line.h"
#include "renderer/highlight_cursor.h"

namespace toolwindow {

using editing::MarkReason;

MarkPlacing::MarkPlacing(const ToolServices& services) : services_(services) {
  connect(&services.session, &editing::Session::markWanted, this, &MarkPlacing::place);
  connect(&services.session, &editing::Session::ended, this, [this] { services_.session.disconnect(this); });
}

void MarkPlacing::place(MarkReason reason) {
  if (reason != MarkReason::Committed) {
    if (!report_.isEmpty()) services_.session.status().withdraw(report_);
    report_.clear();
  }
  reason_ = reason;
  if (reason == MarkReason::Listed || !services_.queue.busy()) return draw(reason);
  const drawing::Pen before = services_.Workspace.pen();
  draw(reason);
  services_.Workspace.setPen(before);
  services_.queue.runBehind([open = QPointer<MarkPlacing>(this)] {
    if (open && open->services_.session.isOpen()) open->draw(open->reason_);
  });
}

void MarkPlacing::draw(MarkReason reason) {
  const editing::Session& session = services_.session;
  const auto cause = platform::failureIn(
      [&] { renderer::placeCursor(session.state(), session.objects(), services_.Workspace, services_.mark); });
  if (!cause) return;
  if (reason == MarkReason::Committed) {
    report_ = QStringLiteral("no mark: ") + *cause;
    session.status().note(report_);
  } else {
    report_ = platform::reportText(renderer::CursorStep.toString(), *cause);
    session.status().ShowStatus(report_);
  }
}

}  // namespace toolwindow
