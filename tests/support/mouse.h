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

/// Moves the mouse over a widget, with the left button held down unless told otherwise.
inline void moveMouse(QWidget& widget, const QPoint& place, Qt::MouseButtons buttons = Qt::LeftButton,
                      Qt::KeyboardModifiers keys = {}) {
  QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons, keys);
  QCoreApplication::sendEvent(&widget, &move);
}

/// Takes the mouse away from a widget. Where it rests, the preview comes to name what is there.
inline void takeMouseAway(QWidget& widget) {
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&widget, &leave);
}

}  // namespace support
