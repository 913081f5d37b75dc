#pragma once

#include <QApplication>
#include <QWheelEvent>

namespace support {

/// Turns the wheel over the middle of the widget, by eighths of a degree.
inline void turnWheel(QWidget& widget, int delta) {
  const QPointF place = widget.rect().center();
  QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace support
