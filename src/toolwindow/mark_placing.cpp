#include "toolwindow/mark_placing.h"

#include <QPointer>

#include "renderer/highlight_cursor.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

void drawCursor(Form2& form) {
  ToolServices& services = form.Services;
  renderer::DrawCursor(services.State, form.Tags, services.Workspace, services.Mark, services.Status);
}

}  // namespace

void PlaceMark(Form2& form, MarkPen pen) {
  ToolServices& services = form.Services;
  if (pen == MarkPen::Left || !services.Queue.Busy()) {
    drawCursor(form);
    return;
  }
  const QString face = services.Workspace.FontName();
  const float size = services.Workspace.FontSize();
  drawCursor(form);
  services.Workspace.SetFontName(face);
  services.Workspace.SetFontSize(size);
  services.Queue.SetAfterwork([open = QPointer<Form2>(&form)] {
    if (open) drawCursor(*open);
  });
}

}  // namespace toolwindow
