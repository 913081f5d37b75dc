#include "toolwindow/saved_menus.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QShortcut>

#include "controls/list_view.h"
#include "controls/popup_menu.h"
#include "editing/commit.h"
#include "editing/reports.h"
#include "toolwindow/idle_operation.h"

namespace toolwindow {
namespace {

constexpr qsizetype LongestEntry = 80;  // letters

/// A text as an entry of a menu: on one line, and shown as it stands.
QString entryText(QString text) {
  if (text.size() > LongestEntry) text = text.left(LongestEntry) + QStringLiteral("...");
  return text.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

}  // namespace

void openMenusByKeys(QWidget& window) {
  auto* keys = new QShortcut(QKeySequence(Qt::ShiftModifier | Qt::Key_F10), &window);
  QObject::connect(keys, &QShortcut::activated, &window, [&window] {
    QWidget* focus = window.focusWidget();
    if (focus == nullptr) return;
    const QPoint place = focus->rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &asked);
  });
}

void showLinesMenu(QWidget& window, const QPoint& place, const QStringList& lines) {
  auto* menu = new QMenu(&window);
  for (const QString& line : lines) menu->addAction(entryText(line))->setEnabled(false);
  controls::popUp(menu, place, menu->actions().constFirst());
}

void showPutBackMenu(QWidget& window, const QPoint& place, const editing::SavedValue& saved,
                     const std::function<void()>& putBack) {
  auto* menu = new QMenu(&window);
  QAction* action = menu->addAction(entryText(QStringLiteral("Put the saved value back: ") + saved.told));
  QObject::connect(action, &QAction::triggered, &window, putBack, Qt::QueuedConnection);
  controls::popUp(menu, place, action);
}

int firstRowOf(const controls::ListView& values, const QString& key) {
  for (int row = 0; row < values.rowCount(); ++row) {
    if (themefiles::keyIdentity(values.rowText(row)) == key) return row;
  }
  return -1;
}

RowMenu::RowMenu(const ToolServices& services, controls::ListView& values)
    : QObject(&values), services_(services), values_(values) {
  connect(&values, &controls::ListView::menuAsked, this, &RowMenu::show);
}

void RowMenu::show(int row, const QPoint& place) {
  const editing::Session& session = services_.session;
  platform::guarded(session.status(), editing::ReadStep.toString(), [&] {
    const QString key = themefiles::keyIdentity(values_.rowText(row));
    if (firstRowOf(values_, key) != row) return;
    const QString object = session.object();
    const auto saved = editing::savedValue(session.state(), object, key);
    if (!saved) return;
    QWidget& window = *values_.window();
    if (!themefiles::groupOf(key) || saved->lines.empty()) {
      return showLinesMenu(window, place, {QStringLiteral("saved: ") + saved->told});
    }
    const auto stillMeant = [this, row, key, object] {
      return services_.session.object() == object && themefiles::keyIdentity(values_.rowText(row)) == key;
    };
    showPutBackMenu(window, place, *saved, [this, row, key, stillMeant] {
      whenIdle(values_, services_.queue, stillMeant, [this, row, key] { commit(row, key); });
    });
  });
}

void RowMenu::commit(int row, const QString& key) {
  editing::Session& session = services_.session;
  platform::guarded(session.status(), editing::WriteStep.toString(), [&] {
    // A Save that ran while the menu was open has changed what is saved.
    const auto saved = editing::savedValue(session.state(), session.object(), key);
    if (!saved || saved->lines.empty()) return;
    session.settle();
    const editing::EditedRow edited{row, values_.rowText(row), values_.subItem(row)};
    if (editing::putSavedBack(session, edited, *saved)) Q_EMIT putBack(row);
  });
}

}  // namespace toolwindow
