#include "toolwindow/object_menu.h"

#include "controls/list_box.h"
#include "editing/commit.h"
#include "editing/differences.h"
#include "editing/reports.h"
#include "editing/session.h"
#include "toolwindow/idle_operation.h"
#include "toolwindow/saved_menus.h"

namespace toolwindow {
namespace {

std::vector<editing::KeyPlace> placesOf(const themefiles::ModuleState& state, const QString& screen,
                                        const QString& object) {
  return editing::differencesIn(state,
                                object.isEmpty() ? editing::objectsOfScreen(state, screen) : QStringList{object});
}

}  // namespace

ObjectMenu::ObjectMenu(const ToolServices& services, controls::ListBox& objects)
    : QObject(&objects), services_(services), objects_(objects) {
  connect(&objects, &controls::ListBox::menuAsked, this, &ObjectMenu::show);
}

void ObjectMenu::show(int row, const QPoint& place) {
  const editing::Session& session = services_.session;
  const QString screen = session.screen();
  const QString object = objects_.List(row);
  MenuEntries entries;
  const auto offer = [&](const QString& what, const QString& of) {
    platform::guarded(session.status(), editing::ReadStep.toString(), [&] {
      const auto count = static_cast<int>(placesOf(session.state(), screen, of).size());
      if (count == 0) return;
      entries.push_back({QStringLiteral("Put %1 back: %2").arg(what, editing::countOf(count)),
                         [this, screen, of] { putBack(screen, of); }});
    });
  };
  offer(QStringLiteral("the saved object"), object);
  offer(QStringLiteral("the whole saved screen"), {});
  const QString told = objects_.told(row);
  for (const QString& line : told.isEmpty() ? QStringList() : told.split(u'\n')) entries.push_back({line, {}});
  showEntries(*objects_.window(), place, entries);
}

void ObjectMenu::putBack(const QString& screen, const QString& object) {
  editing::Session& session = services_.session;
  whenIdle(
      objects_, services_.queue, [&session, screen] { return session.screen() == screen; },
      [&session, screen, object] {
        platform::guarded(session.status(), editing::WriteStep.toString(), [&] {
          session.settle();
          editing::putBack(session, placesOf(session.state(), screen, object));
        });
      });
}

}  // namespace toolwindow
