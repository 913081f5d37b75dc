#pragma once

namespace toolwindow {

class Form2;

/// What becomes of the surface's pen when the mark is measured in the middle of a render or of a tag reading.
enum class MarkPen {
  Left,  ///< it stays as the measure has set it: the measure is a step of the running work
  Kept,  ///< the running work keeps its pen; the measure is done anew behind the work
};

/// Places the mark on the selected object.
void placeMark(Form2& form, MarkPen pen);

}  // namespace toolwindow
