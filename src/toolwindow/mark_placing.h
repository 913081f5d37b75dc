#pragma once

namespace toolwindow {

class Form2;

/// Placing the mark measures text with the surface's pen. What becomes of that pen while a screen is listed or drawn.
enum class MarkPen {
  Left,  ///< it stays as measuring has set it: measuring is a step of the running work
  Kept,  ///< the running work gets its pen back; the mark is placed again at the work's end
};

/// Places the mark on the selected object.
void placeMark(Form2& form, MarkPen pen);

}  // namespace toolwindow
