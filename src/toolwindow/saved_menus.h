#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QString>

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

/// An entry of a menu; without something to run it only tells something, and the keys reach it all the same.
struct MenuEntry {
  QString text;
  std::function<void()> run;
};
using MenuEntries = std::vector<MenuEntry>;

/// Shows a menu, unless it has no entries. What was chosen runs when the menu is gone.
void showEntries(QWidget& window, const QPoint& place, const MenuEntries& entries);

/// The entry that puts a saved value back: "Put the saved value back: 120".
MenuEntry putBackEntry(const editing::SavedValue& saved, const std::function<void()>& putBack);

/// The first row of the key; -1 without one.
int firstRowOf(const controls::ListView& values, const QString& key);

/// The menu of a row whose value differs, or the colour that it names: tells what was saved, and puts it back; a value
/// only if the row has an editor. Of equal keys the first counts.
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
  void addValue(MenuEntries& entries, int row, const QString& key);
  void addColor(MenuEntries& entries, const QString& key);
  void commit(int row, const QString& key);

  const ToolServices& services_;
  controls::ListView& values_;
};

}  // namespace toolwindow
