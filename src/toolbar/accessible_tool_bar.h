#pragma once

#include <QWidget>

#include "toolbar/control.h"

namespace toolbar {

/// What assistive programs need of a toolbar's widget.
class AccessibleToolBarSource {
 public:
  virtual ~AccessibleToolBarSource() = default;
  virtual const Control& inner() const = 0;
  /// The surface of the hidden buttons; null before its properties have been read.
  virtual QWidget* popupWindow() const = 0;
  /// Does what a click of the user on a button or on the chevron (0) would do.
  virtual void press(int ButtonIndex) = 0;
};

/// Lets assistive programs see widgets that are such a source, and their buttons; once for the program, further calls
/// do nothing.
void installAccessibility();

/// Place among the accessible children of what Button_Index names, -1 for none.
int accessibleChildOf(const Control& control);

}  // namespace toolbar
