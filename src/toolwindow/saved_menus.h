#pragma once

#include <functional>

#include <QObject>

#include "toolwindow/tool_services.h"

class QPoint;
class QWidget;

namespace controls {
class ListView;
}
namespace editing {
struct SavedValue;
}

/// The menus of what differs from the saved state. They don't block.
namespace toolwindow {

/// Lets Shift+F10 ask the control with the focus for its menu, as the menu key does in the toolkit.
void openMenusByKeys(QWidget& window);

/// Shows a menu of lines that only tell something. The keys reach them, too.
void showLinesMenu(QWidget& window, const QPoint& place, const QStringList& lines);

/// Shows a menu of one entry, which puts a saved value back. `putBack` runs when the menu is gone.
void showPutBackMenu(QWidget& window, const QPoint& place, const editing::SavedValue& saved,
                     const std::function<void()>& putBack);

/// The first row of the key; -1 without one.
int firstRowOf(const controls::ListView& values, const QString& key);

/// The menu of a row whose value differs: tells the saved one, and puts it back if the row has an editor. Of equal keys
/// the first counts.
class RowMenu : public QObject {
  Q_OBJECT

 public:
  /// It belongs to the list of values.
  RowMenu(const ToolServices& services, controls::ListView& values);

 Q_SIGNALS:
  /// The saved value of this row has been put back.
  void putBack(int row);

 private:
  void show(int row, const QPoint& place);
  void commit(int row, const QString& key);

  const ToolServices& services_;
  controls::ListView& values_;
};

}  // namespace toolwindow
