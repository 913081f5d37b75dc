#include "toolwindow/mark_placing.h"

#include <QPointer>

#include "controls/work_queue.h"
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
  const QString face = services.Workspace.FontName();
  const float size = services.Workspace.FontSize();
  drawCursor(form);
  services.Workspace.SetFontName(face);
  services.Workspace.SetFontSize(size);
  services.queue.runBehind([open = QPointer<Form2>(&form)] {
    if (open) drawCursor(*open);
  });
}

}  // namespace toolwindow
