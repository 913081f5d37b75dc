#pragma once

#include <QWheelEvent>

namespace controls {

/// A widget that ignores the mouse wheel unless it has the focus: turning the wheel over it mustn't change its value by
/// accident.
template <typename Widget>
class WheelWithFocus : public Widget {
 protected:
  using Widget::Widget;

  void wheelEvent(QWheelEvent* event) override {
    if (this->hasFocus()) {
      Widget::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace controls
