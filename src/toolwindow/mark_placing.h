#pragma once

namespace toolwindow {

class Form2;

/// Placing the mark measures text with the surface's pen. What becomes of that pen while a screen is listed or drawn.
enum class MarkPen {
  Left,  ///< it stays as measuring has set it: measuring is a step of the running work
  Kept,  ///< the running work gets its pen back; the mark is placed again at the work's end
};

/// Places the mark on an object that has been chosen. A mark that can't be placed is reported, until the next choice.
void placeMark(Form2& form, MarkPen pen);

/// Places the mark anew on the object whose values have been committed. A mark that can't be placed is noted behind
/// what the commit has told, until the next choice.
void placeMarkAgain(Form2& form);

}  // namespace toolwindow
