#pragma once

#include <QString>

#include "toolbar/picture.h"

namespace toolbar {

/// What is stored of a button, with the values of a new one.
struct ToolbarButton {
  QString Caption = QStringLiteral("B");
  PictureReference Icon;
  bool Enabled = true;
  int ButtonType = 0;  ///< 0 button, 1 separator
  QString ToolTipText;
  int ToolTipIcon = 1;  ///< of the tip's title: 0 none, 1 information, 2 warning, 3 error
  bool Pressed = false;
  int IconAlignment = 4;  ///< icon 0 above the caption, 1 below, 2 left of it, 3 right of it, 4 over it
};

/// Where the layout put a button.
struct ButtonPlace {
  int PosX = 0;
  int PosY = 0;
  bool InChevron = false;  ///< shown in the popup, not in the strip
};

}  // namespace toolbar
