#pragma once

class QAction;
class QMenu;
class QPoint;

namespace controls {

/// Shows a menu at a place of the screen, with an entry of it chosen if one is given. Doesn't block. The menu is
/// deleted when it is closed, but never while this call runs.
void popUp(QMenu* menu, const QPoint& place, QAction* chosen = nullptr);

}  // namespace controls
