#include "controls/swatch_button.h"

#include <QPainter>

namespace controls {
namespace {

constexpr int Bevel = 4;          // pixels of the button round its face
constexpr double Disabled = 0.4;  // opacity

}  // namespace

void SwatchButton::SetBackColor(const QColor& color) {
  backColor_ = color;
  setAccessibleDescription(color.name());
  update();
}

void SwatchButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!backColor_.isValid()) return;
  QPainter painter(this);
  if (!isEnabled()) painter.setOpacity(Disabled);
  painter.fillRect(rect().adjusted(Bevel, Bevel, -Bevel, -Bevel), backColor_);
}

}  // namespace controls
