#include "controls/twips.h"

#include <cmath>

#include <QScreen>

namespace controls {

int ToPixels(double twips) {
  return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

QRect ToPixels(const TwipsRect& place) {
  const QPoint topLeft(ToPixels(place.Left), ToPixels(place.Top));
  const QPoint end(ToPixels(place.Left + place.Width), ToPixels(place.Top + place.Height));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void Place(QWidget& widget, const TwipsRect& place) {
  widget.setGeometry(ToPixels(place));
}

void CentreOnScreen(QWidget& window) {
  const QPoint centre = window.screen()->availableGeometry().center();
  window.move(centre - QPoint(window.width() / 2, (window.height() + ToPixels(FrameHeight)) / 2));
}

}  // namespace controls
