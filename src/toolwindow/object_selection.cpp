#include "toolwindow/object_selection.h"

#include <map>
#include <set>

#include <QScopeGuard>
#include <QSignalBlocker>

#include "platform/code_page.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "toolwindow/mark_placing.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

void showTag(Form2& form, MarkPen pen) {
  ToolServices& services = form.Services;
  form.ListView1->ClearRows();
  for (const themefiles::ValueRow& row : themefiles::ReadTag(services.State, form.List1->Text(), services.Status)) {
    form.ListView1->AddRow(row.Item, row.Value);
  }
  if (services.State.EditorShown) form.CloseEditorFrame();
  PlaceMark(form, pen);
  form.Marking.start();
}

}  // namespace

void ListScreen(Form2& form) {
  ToolServices& services = form.Services;
  themefiles::ModuleState& state = services.State;
  state.ButtonListFilled = false;
  form.List1->Clear();
  const QString screen = form.Combo1->Text();
  state.Filter = themefiles::FilterOf(screen);
  const auto clearFilter = qScopeGuard([&] { state.Filter = {}; });
  const int picked = themefiles::ReadTags(state, screen, form.Tags, services.Status, [&] { services.Queue.Yield(); });
  if (picked < 0) return;
  // A tag that the user has picked while the list was filling stays picked.
  PickTag(form, picked);
}

void List1_Click(Form2& form, controls::Cause cause) {
  showTag(form, cause == controls::Cause::User ? MarkPen::Kept : MarkPen::Left);
}

void PickTag(Form2& form, int row) {
  {
    const QSignalBlocker quiet(form.List1);
    form.List1->SetListIndex(row);
  }
  List1_Click(form, controls::Cause::User);
}

void ShowReasons(Form2& form, const renderer::RenderAccount& account) {
  std::map<QString, QStringList> reasons;
  for (const renderer::LeftOut& entry : account.Missing) {
    QStringList& texts = reasons[platform::UpperCase(entry.Section)];
    const QString text = renderer::ReasonText(entry);
    if (!texts.contains(text)) texts += text;
  }
  std::set<QString> drawn;
  for (const renderer::Drawn& object : account.Objects) drawn.insert(platform::UpperCase(object.Section));
  form.Combo3->update();  // the squares may be those of another scheme
  for (int row = 0; row < form.List1->ListCount(); ++row) {
    const QString name = platform::UpperCase(form.List1->List(row));
    const auto found = reasons.find(name);
    form.List1->setGrey(row, found != reasons.end() && !drawn.contains(name));
    form.List1->SetToolTip(row, found == reasons.end() ? QString() : found->second.join(u'\n'));
  }
}

}  // namespace toolwindow
