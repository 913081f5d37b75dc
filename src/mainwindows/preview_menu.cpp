#include "mainwindows/preview_menu.h"

#include <QMenu>

#include "controls/popup_menu.h"

namespace mainwindows {

void showPreviewMenu(QWidget& form, const QPoint& place, const std::function<void(Command command)>& run) {
  auto* menu = new QMenu(&form);
  const QAction* action = menu->addAction(QStringLiteral("Another game folder..."));
  QObject::connect(
      action, &QAction::triggered, &form, [run] { run(Command::AnotherFolder); }, Qt::QueuedConnection);
  controls::popUp(menu, place);
}

}  // namespace mainwindows
