#include "toolwindow/object_selection.h"

#include <map>
#include <utility>

#include <QSignalBlocker>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/work_queue.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/mark_placing.h"
#include "toolwindow/tool_window.h"
#include "toolwindow/value_grid.h"

namespace toolwindow {
namespace {

void showTag(Form2& form, MarkPen pen) {
  const ToolServices& services = form.services;
  form.ListView1->clearRows();
  for (const themefiles::ValueRow& row : themefiles::ReadTag(services.state, form.List1->Text(), services.status)) {
    form.ListView1->addRow(row.Item, row.Value);
  }
  if (services.state.EditorShown) form.closeEditorFrame();
  placeMark(form, pen);
  services.objectChosen();
  form.markLater();
}

void pickObject(Form2& form, const themefiles::Hit& hit) {
  int row = 0;
  while (row < form.List1->ListCount() && form.List1->List(row) != hit.object) ++row;
  if (row == form.List1->ListCount()) throw platform::Failure(QStringLiteral("%1 is gone").arg(hit.object));
  pickTag(form, row);
}

void pickRow(Form2& form, const themefiles::Hit& hit) {
  if (hit.row >= form.ListView1->rowCount() || form.ListView1->rowText(hit.row) != hit.key) {
    throw platform::Failure(QStringLiteral("%1 of %2 is gone").arg(hit.key, hit.object));
  }
  form.ListView1->selectRow(hit.row);
  ListView1_ItemClick(form, hit.row);
}

QWidget* focusFor(const Form2& form, const themefiles::Hit& hit) {
  if (hit.row >= 0) return form.ListView1;
  return hit.object.isEmpty() ? static_cast<QWidget*>(form.Combo1) : form.List1;
}

/// The list of the present screen is complete: picks the object and the row that are waited for.
void pickAwaited(Form2& form) {
  if (!form.awaited()) return;
  const themefiles::Hit hit = *form.awaited();
  form.await({});
  if (hit.screen != form.Combo1->Text() || hit.object.isEmpty()) return;
  platform::guarded(form.services.status, FindStep.toString(), [&] {
    pickObject(form, hit);
    if (hit.row >= 0) pickRow(form, hit);
  });
}

}  // namespace

void listScreen(Form2& form, const QString& kept) {
  const ToolServices& services = form.services;
  themefiles::ModuleState& state = services.state;
  state.ButtonListFilled = false;
  form.beginList();
  const int picked = themefiles::listScreenTags(state, form.Combo1->Text(), form.tags, services.status,
                                                [&] { services.queue.yield(); });
  form.endList();
  // A tag that the user has picked while the list was filling stays picked, and outranks what is waited for.
  const auto again = form.List1->findItems(kept, Qt::MatchExactly);
  const int row = picked >= 0 || again.isEmpty() ? picked : form.List1->row(again.constFirst());
  if (row >= 0 && !form.awaited()) pickTag(form, row);
  pickAwaited(form);
}

void List1_Click(Form2& form, controls::Cause cause) {
  if (cause == controls::Cause::User) form.await({});
  form.services.settleHand();
  showTag(form, cause == controls::Cause::User ? MarkPen::Kept : MarkPen::Left);
}

void pickTag(Form2& form, int row) {
  {
    const QSignalBlocker quiet(form.List1);
    form.List1->SetListIndex(row);
  }
  List1_Click(form, controls::Cause::User);
}

void goToHit(Form2& form, const themefiles::Hit& hit) {
  form.activateWindow();
  focusFor(form, hit)->setFocus();
  form.await(hit);
  if (form.Combo1->Text() != hit.screen) {
    platform::guarded(form.services.status, FindStep.toString(), [&] { form.Combo1->SetText(hit.screen); });
  } else if (form.listIsComplete()) {
    pickAwaited(form);
  }
}

void showReasons(Form2& form, const renderer::RenderAccount& account) {
  std::map<QString, QStringList> reasons;
  for (const renderer::LeftOut& entry : account.missing) {
    QStringList& texts = reasons[platform::upperCase(entry.section)];
    const QString text = renderer::reasonText(entry);
    if (!texts.contains(text)) texts += text;
  }
  const QSet<QString> drawn = renderer::drawnSections(account);
  for (int row = 0; row < form.List1->ListCount(); ++row) {
    const QString name = platform::upperCase(form.List1->List(row));
    const auto found = reasons.find(name);
    form.List1->setGrey(row, found != reasons.end() && !drawn.contains(name));
    form.List1->setRowToolTip(row, found == reasons.end() ? QString() : found->second.join(u'\n'));
  }
}

}  // namespace toolwindow
