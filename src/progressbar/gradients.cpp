#include "progressbar/gradients.h"

#include <cmath>

#include "drawing/ramps.h"

namespace progressbar {

namespace {

/// The pixel of a colour value. System colours aren't known here.
QRgb pixelOf(quint32 color) {
  const auto channel = [color](int shift) { return static_cast<int>(color >> shift & 0xFF); };
  return qRgb(channel(0), channel(8), channel(16));
}

/// Colour i of n from the first to the last.
QRgb stepOf(QRgb first, QRgb last, int i, int n) {
  const auto channel = [&](int from, int to) {
    return static_cast<int>(std::lrint(from + i * ((to - from) / static_cast<double>(n))));
  };
  return qRgb(channel(qRed(first), qRed(last)), channel(qGreen(first), qGreen(last)),
              channel(qBlue(first), qBlue(last)));
}

}  // namespace

void GradientTwoColour(drawing::Raster& surface, int Direction, quint32 StartColor, quint32 EndColor, int Left, int Top,
                       int Width, int Height) {
  if (Direction != 0 && Direction != 1) return;
  drawing::GradientFill(surface, Left, Top, Width, Height, pixelOf(StartColor), pixelOf(EndColor),
                        static_cast<drawing::Direction>(Direction));
}

void DrawGradientFourColour(drawing::Raster& surface, int Left, int Top, int Width, int Height, quint32 TopLeftColour,
                            quint32 TopRightColour, quint32 BottomLeftColour, quint32 BottomRightColour) {
  if (Width < 1 || Height < 1) return;
  const QRect shown = QRect(Left, Top, Width, Height) & surface.rect();
  for (int y = shown.top(); y <= shown.bottom(); ++y) {
    const QRgb first = stepOf(pixelOf(TopLeftColour), pixelOf(BottomLeftColour), y - Top, Height);
    const QRgb last = stepOf(pixelOf(TopRightColour), pixelOf(BottomRightColour), y - Top, Height);
    QRgb* const row = surface.pixelRow(y);
    for (int x = shown.left(); x <= shown.right(); ++x) row[x] = stepOf(first, last, x - Left, Width);
  }
}

}  // namespace progressbar
