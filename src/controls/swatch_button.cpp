#include "controls/swatch_button.h"

#include <QPainter>

namespace controls {
namespace {

constexpr int Bevel = 4;  // pixels of the button round its face

}  // namespace

void SwatchButton::SetBackColor(const QColor& color) {
  backColor_ = color;
  setAccessibleDescription(color.name());
  update();
}

void SwatchButton::contextMenuEvent(QContextMenuEvent* event) {
  Q_EMIT menuAsked(event->reason() == QContextMenuEvent::Mouse ? event->globalPos() : mapToGlobal(rect().bottomLeft()));
}

void SwatchButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!backColor_.isValid()) return;
  QPainter painter(this);
  painter.fillRect(rect().adjusted(Bevel, Bevel, -Bevel, -Bevel), backColor_);
}

}  // namespace controls
