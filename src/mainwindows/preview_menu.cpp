#include "mainwindows/preview_menu.h"

#include <QMenu>

#include "controls/popup_menu.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window.h"

namespace mainwindows {

void showPreviewMenu(Form1& form, const QPoint& place, const std::function<void(const CommandRow& row)>& run) {
  auto* menu = new QMenu(&form);
  for (const CommandRow& row : commandRows()) {
    if (row.menu.isEmpty()) continue;
    QAction* action = menu->addAction(row.menu.toString() + u'\t' + row.keys.toString());
    action->setEnabled(canRun(form, row));
    QObject::connect(
        action, &QAction::triggered, &form, [run, &row] { run(row); }, Qt::QueuedConnection);
  }
  controls::popUp(menu, place);
}

}  // namespace mainwindows
