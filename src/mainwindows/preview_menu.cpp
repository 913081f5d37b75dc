#include "mainwindows/preview_menu.h"

#include <QMenu>

#include "controls/popup_menu.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window.h"

namespace mainwindows {

void showPreviewMenu(Form1& form, const QPoint& place, bool guidesOn,
                     const std::function<void(const CommandRow& row)>& run) {
  auto* menu = new QMenu(&form);
  auto* together = new QMenu(QStringLiteral("Objects together"), menu);
  for (const CommandRow& row : commandRows()) {
    if (row.menu.isEmpty()) continue;
    const QString keys = row.keys.isEmpty() ? QString() : u'\t' + row.keys.toString();
    QMenu& in = row.command >= Command::AlignLeftEdges ? *together : *menu;
    QAction* action = in.addAction(row.menu.toString() + keys);
    action->setEnabled(canRun(form, row));
    action->setCheckable(row.command == Command::Guides);
    action->setChecked(guidesOn);
    QObject::connect(
        action, &QAction::triggered, &form, [run, &row] { run(row); }, Qt::QueuedConnection);
  }
  menu->addMenu(together)->setEnabled(!form.session().members().isEmpty());
  controls::popUp(menu, place);
}

}  // namespace mainwindows
