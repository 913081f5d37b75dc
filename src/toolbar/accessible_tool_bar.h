#pragma once

#include <QWidget>

#include "toolbar/control.h"

namespace toolbar {

/// What a toolbar's widget offers to assistive programs.
class AccessibleToolBarSource {
 public:
  virtual ~AccessibleToolBarSource() = default;
  virtual const Control& inner() const = 0;
  /// The window of the hidden buttons; null before the toolbar's properties are read.
  virtual QWidget* popupWindow() const = 0;
  /// Does the same as a click on a button, or on the chevron (0).
  virtual void press(int ButtonIndex) = 0;
};

/// Makes widgets with this interface, and their buttons, visible to assistive programs. Further calls do nothing.
void installAccessibility();

/// The index of the accessible child that Button_Index stands for, or -1.
int accessibleChildOf(const Control& control);

}  // namespace toolbar
