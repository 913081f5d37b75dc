#include "toolwindow/object_selection.h"

#include <QScopeGuard>

#include "renderer/highlight_cursor.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_reader.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {

void ListScreen(Form2& form) {
  ToolServices& services = form.Services;
  themefiles::ModuleState& state = services.State;
  state.ButtonListFilled = false;
  form.List1->Clear();
  const QString screen = form.Combo1->Text();
  state.Filter = themefiles::FilterOf(screen);
  const auto clearFilter = qScopeGuard([&] { state.Filter = {}; });
  themefiles::ReadTags(state, screen, form.Tags, services.Status, [&] { services.Queue.Yield(); });
}

void List1_Click(Form2& form) {
  ToolServices& services = form.Services;
  form.ListView1->ClearRows();
  for (const themefiles::ValueRow& row : themefiles::ReadTag(services.State, form.List1->Text(), services.Status)) {
    form.ListView1->AddRow(row.Item, row.Value);
  }
  if (services.State.EditorShown) form.CloseEditorFrame();
  renderer::DrawCursor(services.State, form.Tags, services.Workspace, services.Mark, services.Status);
}

}  // namespace toolwindow
