#pragma once

#include <QBuffer>
#include <QHash>
#include <QImageWriter>

namespace support {

/// A picture of the pixels that the function gives for each place.
template <typename Pixel>
QImage pictureOf(int width, int height, Pixel pixel) {
  QImage image(width, height, QImage::Format_ARGB32);
  for (int i = 0; i < width * height; ++i) image.setPixel(i % width, i / width, pixel(i % width, i / width));
  return image;
}

inline QImage plainPicture(int width, int height, QRgb color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

/// The bytes of a picture file.
inline QByteArray encoded(const QImage& image, const char* format, bool inPasses = false) {
  QBuffer buffer;
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(inPasses);
  if (!writer.write(image)) qFatal("can't make a picture");
  return buffer.data();
}

/// The pixels as rows of the letters of their colours; "?" for any other colour.
inline QByteArrayList lettersOf(const QImage& image, const QHash<QRgb, char>& letters) {
  QByteArrayList rows(image.height());
  for (int i = 0; i < image.width() * image.height(); ++i) {
    rows[i / image.width()] += letters.value(image.pixel(i % image.width(), i / image.width()), '?');
  }
  return rows;
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
