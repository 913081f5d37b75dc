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

void showEntries(QWidget& window, const QPoint& place, const MenuEntries& entries) {
  if (entries.empty()) return;
  auto* menu = new QMenu(&window);
  for (const MenuEntry& entry : entries) {
    QAction* action = menu->addAction(entryText(entry.text));
    action->setEnabled(entry.run != nullptr);
    if (entry.run) QObject::connect(action, &QAction::triggered, &window, entry.run, Qt::QueuedConnection);
  }
  controls::popUp(menu, place, menu->actions().constFirst());
}

MenuEntry putBackEntry(const editing::SavedValue& saved, const std::function<void()>& putBack) {
  return {QStringLiteral("Put the saved value back: ") + saved.told, putBack};
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
  platform::guarded(services_.session.status(), editing::ReadStep.toString(), [&] {
    const QString key = themefiles::keyIdentity(values_.rowText(row));
    if (firstRowOf(values_, key) != row) return;
    MenuEntries entries;
    addValue(entries, row, key);
    addColor(entries, key);
    showEntries(*values_.window(), place, entries);
  });
}

void RowMenu::addValue(MenuEntries& entries, int row, const QString& key) {
  const editing::Session& session = services_.session;
  const QString object = session.object();
  const auto saved = editing::savedValue(session.state(), object, key);
  if (!saved) return;
  if (!themefiles::groupOf(key) || saved->lines.empty()) {
    entries.push_back({QStringLiteral("saved: ") + saved->told, {}});
    return;
  }
  const auto stillMeant = [this, row, key, object] {
    return services_.session.object() == object && themefiles::keyIdentity(values_.rowText(row)) == key;
  };
  entries.push_back(putBackEntry(*saved, [this, row, key, stillMeant] {
    whenIdle(values_, services_.queue, stillMeant, [this, row, key] { commit(row, key); });
  }));
}

/// The colour of the theme that the row names.
void RowMenu::addColor(MenuEntries& entries, const QString& key) {
  editing::Session& session = services_.session;
  const auto color = editing::savedColorOf(session.state(), session.object(), key);
  if (!color) return;
  if (color->lines.empty()) {
    entries.push_back({color->told, {}});
    return;
  }
  const editing::SavedLine& line = color->lines.front();
  const editing::KeyPlace place{line.copy, line.section, line.key};
  entries.push_back(
      {QStringLiteral("Put the saved colour back: %1 = %2").arg(line.key, color->value), [this, &session, place] {
         whenIdle(
             values_, services_.queue, [] { return true; },
             [&session, place] {
               session.settle();
               editing::putBack(session, {place});
             });
       }});
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
