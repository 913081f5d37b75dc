#include "controls/popup_menu.h"

#include <QMenu>
#include <QPointer>

namespace controls {

void popUp(QMenu* menu, const QPoint& place, QAction* chosen) {
  const QPointer<QMenu> shown(menu);
  menu->popup(place);
  // Who lost the focus to it may have served events: it may be closed by now.
  if (!shown) return;
  if (!shown->isVisible()) return shown->deleteLater();
  shown->setAttribute(Qt::WA_DeleteOnClose);
  if (chosen != nullptr) shown->setActiveAction(chosen);
}

}  // namespace controls
