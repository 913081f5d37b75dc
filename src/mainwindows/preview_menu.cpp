#include "mainwindows/preview_menu.h"

#include <QMenu>

namespace mainwindows {

void showPreviewMenu(QWidget& form, const QPoint& place, const std::function<void(Command command)>& run) {
  auto* menu = new QMenu(&form);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QAction* action = menu->addAction(QStringLiteral("Another game folder..."));
  QObject::connect(
      action, &QAction::triggered, &form, [run] { run(Command::AnotherFolder); }, Qt::QueuedConnection);
  menu->popup(place);
}

}  // namespace mainwindows
