#pragma once

#include <QWidget>

namespace toolbar {

/// The events of a toolbar, as signals of its widget. The control raises them here.
class ToolBarEvents : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

 Q_SIGNALS:
  void PropertyChanged(const QString& name);
  void MouseEnter();
  void MouseLeave();
  void Hover(int ButtonIndex);
  void Click(int ButtonIndex);
  void DblClick(int ButtonIndex);
  // Button: 1 left, 2 right, 4 middle; Shift: 1 Shift, 2 Control, 4 Alt; X, Y: pixels of the surface. The Button of a
  // move in the popup is 999. A client may change these four.
  void MouseUp(int ButtonIndex, short& Button, short& Shift, float& X, float& Y);
  void MouseDown(int ButtonIndex, short& Button, short& Shift, float& X, float& Y);
  void MouseMove(int ButtonIndex, short& Button, short& Shift, float& X, float& Y);
};

}  // namespace toolbar
