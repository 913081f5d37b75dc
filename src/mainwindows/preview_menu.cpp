#include "mainwindows/preview_menu.h"

#include <QMenu>

#include "controls/popup_menu.h"

namespace mainwindows {
namespace {

struct Entry {
  Command command;
  QStringView text;
};
constexpr Entry Entries[] = {{Command::AnotherFolder, u"Another game folder..."}, {Command::Loupe, u"Loupe\tF7"}};

}  // namespace

void showPreviewMenu(QWidget& form, const QPoint& place, const std::function<void(Command command)>& run) {
  auto* menu = new QMenu(&form);
  for (const auto& [command, text] : Entries) {
    const QAction* action = menu->addAction(text.toString());
    QObject::connect(
        action, &QAction::triggered, &form, [run, chosen = command] { run(chosen); }, Qt::QueuedConnection);
  }
  controls::popUp(menu, place);
}

}  // namespace mainwindows
