#pragma once

#include <QObject>
#include <QString>

#include "toolwindow/tool_services.h"

class QPoint;

namespace controls {
class ListBox;
}

namespace toolwindow {

/// The menu of an object in the list of objects: puts the object back, or the whole screen, as they were saved, and
/// tells what bold and grey letters tell.
class ObjectMenu : public QObject {
 public:
  /// It belongs to the list.
  ObjectMenu(const ToolServices& services, controls::ListBox& objects);

 private:
  void show(int row, const QPoint& place);
  /// An object, or the screen without one.
  void putBack(const QString& screen, const QString& object);

  const ToolServices& services_;
  controls::ListBox& objects_;
};

}  // namespace toolwindow
