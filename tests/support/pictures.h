#pragma once

#include <QImage>

namespace support {

inline QImage plainPicture(int width, int height, QRgb color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

/// The rectangle round all pixels that differ from the colour.
inline QRect inkOf(const QImage& image, QRgb ground = qRgb(255, 255, 255)) {
  QRect rectangle;
  for (int y = 0; y < image.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if (line[x] != ground) rectangle |= QRect(x, y, 1, 1);
    }
  }
  return rectangle;
}

}  // namespace support
