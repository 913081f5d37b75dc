#include "controls/number_bar.h"

#include <algorithm>

#include <QSignalBlocker>

namespace controls {

NumberBar::NumberBar(int limit, int value, QWidget* parent) : WheelWithFocus(Qt::Vertical, parent) {
  setRange(-limit, limit);
  setSingleStep(1);
  setPageStep(1);
  setValue(-value);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::PreventContextMenu);
  connect(this, &QScrollBar::valueChanged, this, &NumberBar::Change);
}

void NumberBar::SetValue(int value) {
  setValue(-std::clamp(value, -limit(), limit()));
}

void NumberBar::setValueQuietly(int value) {
  const QSignalBlocker quiet(this);
  SetValue(value);
}

}  // namespace controls
