#include "toolwindow/saved_marks.h"

#include <QMenu>
#include <QPointer>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/popup_menu.h"
#include "controls/work_queue.h"
#include "platform/failure.h"
#include "toolwindow/colour_editor.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/saved_state.h"
#include "toolwindow/tool_window.h"
#include "toolwindow/value_commit.h"

namespace toolwindow {
namespace {

constexpr qsizetype LongestEntry = 80;  // letters

/// A text as an entry of a menu: on one line, and shown as it stands.
QString entryText(QString text) {
  if (text.size() > LongestEntry) text = text.left(LongestEntry) + QStringLiteral("...");
  return text.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

/// Shows a menu of lines that only tell something. The keys reach them, too.
void popUpLines(Form2& form, const QPoint& place, const QStringList& lines) {
  auto* menu = new QMenu(&form);
  for (const QString& line : lines) menu->addAction(entryText(line))->setEnabled(false);
  controls::popUp(menu, place, menu->actions().constFirst());
}

/// Shows a menu of one entry, which runs like the other commands that change colours and keys: when no work is running,
/// and only if `stillMeant` then.
void popUp(Form2& form, const QPoint& place, const SavedValue& saved, const std::function<bool(Form2&)>& stillMeant,
           const std::function<void(Form2&)>& putBack) {
  auto* menu = new QMenu(&form);
  QAction* action = menu->addAction(entryText(QStringLiteral("Put the saved value back: ") + saved.told));
  const auto chosen = [&form, stillMeant, putBack] {
    form.services.queue.runOutside([open = QPointer<Form2>(&form), stillMeant, putBack] {
      if (!open || !open->isVisible() || !stillMeant(*open)) return;
      platform::guarded(open->services.status, WriteStep.toString(), [&] { putBack(*open); });
    });
  };
  // Queued: the menu is gone by then.
  QObject::connect(action, &QAction::triggered, &form, chosen, Qt::QueuedConnection);
  controls::popUp(menu, place, action);
}

/// What was saved for a key of a section of the theme, if that differs.
std::optional<SavedValue> savedIn(const Form2& form, const QString& section, const QString& key,
                                  std::optional<themefiles::KeyGroup> group) {
  const SavedState saved(form.services.state);
  return SavedObject(saved, section).of(key, group);
}

/// The theme's colour that Command2 shows, as it was saved; none when it isn't the theme's or doesn't differ.
std::optional<SavedValue> savedColor(const Form2& form) {
  const int themeGroup = 0;
  const QString name = form.Combo3->Text();
  if (form.Combo4->ListIndex() != themeGroup || name.isEmpty()) return std::nullopt;
  return savedIn(form, QStringLiteral("Colors"), name, std::nullopt);
}

bool isFirstOfItsKey(const controls::ListView& grid, int row, const QString& key) {
  for (int above = 0; above < row; ++above) {
    if (themefiles::keyIdentity(grid.rowText(above)) == key) return false;
  }
  return true;
}

/// The menu of a row whose key was saved otherwise.
void popUpForKey(Form2& form, int row, const QString& key, const SavedValue& saved, const QPoint& place) {
  const QString section = form.List1->Text();
  const auto group = themefiles::groupOf(key);
  if (!group || saved.lines.empty()) return popUpLines(form, place, {QStringLiteral("saved: ") + saved.told});
  popUp(
      form, place, saved,
      [=](const Form2& open) {
        return open.List1->Text() == section && themefiles::keyIdentity(open.ListView1->rowText(row)) == key;
      },
      [=](Form2& open) {
        // A Save that ran while the menu was open has changed what is saved.
        const auto now = savedIn(open, section, key, group);
        if (now && !now->lines.empty()) putSavedBack(open, row, *now);
      });
}

}  // namespace

void showRowMenu(Form2& form, int row, const QPoint& place) {
  platform::guarded(form.services.status, ReadStep.toString(), [&] {
    const QString key = themefiles::keyIdentity(form.ListView1->rowText(row));
    if (!isFirstOfItsKey(*form.ListView1, row, key)) return;
    const auto saved = savedIn(form, form.List1->Text(), key, themefiles::groupOf(key));
    if (saved) popUpForKey(form, row, key, *saved, place);
  });
}

void showObjectMenu(Form2& form, int row, const QPoint& place) {
  const QString told = form.List1->told(row);
  if (!told.isEmpty()) popUpLines(form, place, told.split(u'\n'));
}

void showColorMenu(Form2& form, const QPoint& place) {
  platform::guarded(form.services.status, ReadStep.toString(), [&] {
    const auto saved = savedColor(form);
    if (!saved || saved->lines.empty()) return;
    const QString name = form.Combo3->Text();
    popUp(
        form, place, *saved, [=](const Form2& open) { return open.Combo3->Text() == name; },
        [=](Form2& open) {
          const auto now = savedColor(open);
          if (now && !now->lines.empty()) putSavedColorBack(open, name, *now);
        });
  });
}

}  // namespace toolwindow
