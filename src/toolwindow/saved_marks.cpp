#include "toolwindow/saved_marks.h"

#include <QMenu>
#include <QPointer>
#include <QSet>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/work_queue.h"
#include "platform/failure.h"
#include "toolwindow/colour_editor.h"
#include "toolwindow/saved_state.h"
#include "toolwindow/tool_window.h"
#include "toolwindow/value_commit.h"

namespace toolwindow {
namespace {

/// Shows a menu of one entry, which runs like the other commands that change colours and keys: when no work is running,
/// and only if `stillMeant` then.
void popUp(Form2& form, const QPoint& place, const std::function<bool(Form2&)>& stillMeant,
           const std::function<void(Form2&)>& putBack) {
  auto* menu = new QMenu(&form);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* action = menu->addAction(QStringLiteral("Put the saved value back"));
  const auto chosen = [&form, stillMeant, putBack] {
    form.services.queue.runOutside([open = QPointer<Form2>(&form), stillMeant, putBack] {
      if (!open || !open->isVisible() || !stillMeant(*open)) return;
      platform::guardedSilently([&] { putBack(*open); });
    });
  };
  // Queued: the menu is gone by then.
  QObject::connect(action, &QAction::triggered, &form, chosen, Qt::QueuedConnection);
  menu->popup(place);
  menu->setActiveAction(action);
}

/// The theme's colour that Command2 shows, as it was saved; none when it isn't the theme's or doesn't differ.
std::optional<SavedValue> savedColor(const Form2& form) {
  const int themeGroup = 0;
  const QString name = form.Combo3->Text();
  if (form.Combo4->ListIndex() != themeGroup || name.isEmpty()) return std::nullopt;
  return SavedState(form.services.state).of(QStringLiteral("Colors"), name, std::nullopt);
}

}  // namespace

void markSaved(Form2& form) {
  const SavedState saved(form.services.state);
  for (int row = 0; row < form.List1->ListCount(); ++row) {
    form.List1->setBold(row, saved.differsIn(form.List1->List(row)));
  }
  QSet<QString> seen;  // the first of equal keys counts
  for (int row = 0; row < form.ListView1->rowCount(); ++row) {
    const QString key = themefiles::keyIdentity(form.ListView1->rowText(row));
    std::optional<SavedValue> value;
    if (!seen.contains(key)) value = saved.of(form.List1->Text(), key, themefiles::groupOf(key));
    seen += key;
    form.ListView1->setSaved(row, value ? QStringLiteral("saved: ") + value->told : QString());
  }
}

void showRowMenu(Form2& form, int row, const QPoint& place) {
  const QString section = form.List1->Text();
  const QString key = themefiles::keyIdentity(form.ListView1->rowText(row));
  for (int above = 0; above < row; ++above) {
    if (themefiles::keyIdentity(form.ListView1->rowText(above)) == key) return;
  }
  const auto group = themefiles::groupOf(key);
  if (!group) return;
  const auto saved = SavedState(form.services.state).of(section, key, group);
  if (!saved || saved->lines.empty()) return;
  popUp(
      form, place,
      [=](const Form2& open) {
        return open.List1->Text() == section && themefiles::keyIdentity(open.ListView1->rowText(row)) == key;
      },
      [=](Form2& open) {
        // A Save that ran while the menu was open has changed what is saved.
        const auto now = SavedState(open.services.state).of(section, key, group);
        if (now && !now->lines.empty()) putSavedBack(open, row, *now);
      });
}

void showColorMenu(Form2& form, const QPoint& place) {
  const auto saved = savedColor(form);
  if (!saved || saved->lines.empty()) return;
  const QString name = form.Combo3->Text();
  popUp(
      form, place, [=](const Form2& open) { return open.Combo3->Text() == name; },
      [=](Form2& open) {
        const auto now = savedColor(open);
        if (now && !now->lines.empty()) putSavedColorBack(open, name, *now);
      });
}

}  // namespace toolwindow
