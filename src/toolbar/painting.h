#pragma once

#include <vector>

#include <QPainter>

#include "toolbar/toolbar_button.h"

namespace toolbar {

inline constexpr int ButtonSize = 32;

/// What the pointer does to the strip: numbers of buttons from 1, 0 for none.
struct Pointer {
  int Over = 0;
  int Held = 0;
};

/// Draws the strip: one icon a button from the left, grey where the button is disabled.
void Paint(QPainter& painter, const QRect& strip, const std::vector<ToolbarButton>& buttons, const Pointer& pointer);

}  // namespace toolbar
