#include "toolwindow/mark_placing.h"

#include <QPointer>

#include "controls/work_queue.h"
#include "drawing/surface.h"
#include "renderer/highlight_cursor.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

void drawCursor(Form2& form) {
  const ToolServices& services = form.services;
  renderer::DrawCursor(services.state, form.tags, services.Workspace, services.mark, services.status);
}

}  // namespace

void placeMark(Form2& form, MarkPen pen) {
  const ToolServices& services = form.services;
  if (pen == MarkPen::Left || !services.queue.busy()) {
    drawCursor(form);
    return;
  }
  const drawing::Pen before = services.Workspace.pen();
  drawCursor(form);
  services.Workspace.setPen(before);
  services.queue.runBehind([open = QPointer<Form2>(&form)] {
    if (open) drawCursor(*open);
  });
}

}  // namespace toolwindow
