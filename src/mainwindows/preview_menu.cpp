#include "mainwindows/preview_menu.h"

#include <QMenu>

#include "mainwindows/main_window.h"
#include "mainwindows/theme_session.h"

namespace mainwindows {

void askAnotherFolder(Form1& form) {
  form.queue.runOutside([&form] { openAnotherFolder(form); });
}

void showPreviewMenu(Form1& form, const QPoint& place) {
  auto* menu = new QMenu(&form);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QAction* action = menu->addAction(QStringLiteral("Another game folder..."));
  // Queued: the menu is gone by then.
  QObject::connect(
      action, &QAction::triggered, &form, [&form] { askAnotherFolder(form); }, Qt::QueuedConnection);
  menu->popup(place);
}

}  // namespace mainwindows
