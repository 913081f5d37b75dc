#pragma once

#include <QScrollBar>

#include "controls/wheel_with_focus.h"

namespace controls {

/// A vertical scroll bar for a number: its upper arrow, the Up key and a wheel turned away raise the value. Steps of 1.
class NumberBar : public WheelWithFocus<QScrollBar> {
  Q_OBJECT

 public:
  /// Range -limit to limit; stands at `value`.
  NumberBar(int limit, int value, QWidget* parent = nullptr);

  int limit() const { return maximum(); }
  int Value() const { return -value(); }
  /// Fires Change when the value differs. A value beyond the range goes to its end.
  void SetValue(int value);
  /// Sets the value without firing Change.
  void setValueQuietly(int value);

 Q_SIGNALS:
  void Change();
};

}  // namespace controls
