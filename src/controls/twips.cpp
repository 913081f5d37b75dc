#include "controls/twips.h"

#include <cmath>

#include <QScreen>

namespace controls {

int toPixels(double twips) {
  return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

QRect toPixels(const TwipsRect& place) {
  const QPoint topLeft(toPixels(place.Left), toPixels(place.Top));
  const QPoint end(toPixels(place.Left + place.Width), toPixels(place.Top + place.Height));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void place(QWidget& widget, const TwipsRect& place) {
  widget.setGeometry(toPixels(place));
}

void centreOnScreen(QWidget& window) {
  const QPoint centre = window.screen()->availableGeometry().center();
  window.move(centre - QPoint(window.width() / 2, (window.height() + toPixels(FrameHeight)) / 2));
}

}  // namespace controls
