#pragma once

#include <QIcon>
#include <QString>

namespace toolbar {

/// One button of the toolbar, with the values of a new one.
struct ToolbarButton {
  QString Caption = QStringLiteral("B");
  QIcon Icon;
  bool Enabled = true;
  int ButtonType = 0;  ///< 0 button, 1 separator
  QString ToolTipText;
  int ToolTipIcon = 1;
  bool Pressed = false;
  int IconAlignment = 4;  ///< icon 0 above the caption, 1 below, 2 left of it, 3 right of it, 4 over it
};

}  // namespace toolbar
