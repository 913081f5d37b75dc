#include "toolwindow/object_selection.h"

#include <map>
#include <set>

#include <QSignalBlocker>

#include "platform/code_page.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "toolwindow/mark_placing.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

void showTag(Form2& form, MarkPen pen) {
  ToolServices& services = form.services;
  form.ListView1->clearRows();
  for (const themefiles::ValueRow& row : themefiles::ReadTag(services.state, form.List1->Text(), services.status)) {
    form.ListView1->addRow(row.Item, row.Value);
  }
  if (services.state.EditorShown) form.closeEditorFrame();
  placeMark(form, pen);
  form.marking.start();
}

}  // namespace

void listScreen(Form2& form) {
  ToolServices& services = form.services;
  themefiles::ModuleState& state = services.state;
  state.ButtonListFilled = false;
  form.List1->Clear();
  const QString screen = form.Combo1->Text();
  const int picked =
      themefiles::listScreenTags(state, screen, form.tags, services.status, [&] { services.queue.yield(); });
  if (picked < 0) return;
  // A tag that the user has picked while the list was filling stays picked.
  pickTag(form, picked);
}

void List1_Click(Form2& form, controls::Cause cause) {
  showTag(form, cause == controls::Cause::User ? MarkPen::Kept : MarkPen::Left);
}

void pickTag(Form2& form, int row) {
  {
    const QSignalBlocker quiet(form.List1);
    form.List1->SetListIndex(row);
  }
  List1_Click(form, controls::Cause::User);
}

void showReasons(Form2& form, const renderer::RenderAccount& account) {
  std::map<QString, QStringList> reasons;
  for (const renderer::LeftOut& entry : account.missing) {
    QStringList& texts = reasons[platform::upperCase(entry.section)];
    const QString text = renderer::reasonText(entry);
    if (!texts.contains(text)) texts += text;
  }
  std::set<QString> drawn;
  for (const renderer::DrawnObject& object : account.objects) drawn.insert(platform::upperCase(object.section));
  form.Combo3->updateSwatches();  // the squares may be those of another scheme
  for (int row = 0; row < form.List1->ListCount(); ++row) {
    const QString name = platform::upperCase(form.List1->List(row));
    const auto found = reasons.find(name);
    form.List1->setGrey(row, found != reasons.end() && !drawn.contains(name));
    form.List1->setRowToolTip(row, found == reasons.end() ? QString() : found->second.join(u'\n'));
  }
}

}  // namespace toolwindow
