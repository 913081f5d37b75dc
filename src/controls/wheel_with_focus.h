#pragma once

#include <QWheelEvent>

namespace controls {

/// A widget that answers the wheel only while it has the focus, so that a turn over it doesn't change its value
/// unasked.
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
