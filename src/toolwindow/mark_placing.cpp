#include "toolwindow/mark_placing.h"

#include <QPointer>

#include "controls/work_queue.h"
#include "drawing/surface.h"
#include "platform/status_line.h"
#include "renderer/highlight_cursor.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

using Tell = void (*)(Form2& form, const QString& cause);

void report(Form2& form, const QString& cause) {
  form.markReport = platform::reportText(renderer::CursorStep.toString(), cause);
  form.services.status.ShowStatus(form.markReport);
}

void note(Form2& form, const QString& cause) {
  form.markReport = QStringLiteral("no mark: ") + cause;
  form.services.status.note(form.markReport);
}

void drawCursor(Form2& form, Tell tell) {
  const ToolServices& services = form.services;
  const auto cause =
      platform::failureIn([&] { renderer::placeCursor(services.state, form.tags, services.Workspace, services.mark); });
  if (cause) tell(form, *cause);
}

void place(Form2& form, MarkPen pen, Tell tell) {
  const ToolServices& services = form.services;
  if (pen == MarkPen::Left || !services.queue.busy()) {
    drawCursor(form, tell);
    return;
  }
  const drawing::Pen before = services.Workspace.pen();
  drawCursor(form, tell);
  services.Workspace.setPen(before);
  services.queue.runBehind([open = QPointer<Form2>(&form), tell] {
    if (open) drawCursor(*open, tell);
  });
}

}  // namespace

void placeMark(Form2& form, MarkPen pen) {
  if (!form.markReport.isEmpty()) form.services.status.withdraw(form.markReport);
  form.markReport.clear();
  place(form, pen, report);
}

void placeMarkAgain(Form2& form) {
  place(form, MarkPen::Kept, note);
}

}  // namespace toolwindow
