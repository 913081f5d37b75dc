#include "drawing/raster_pictures.h"

#include <QPainter>

#include "drawing/bitmaps.h"
#include "drawing/raster_corners.h"

namespace drawing {

namespace {

constexpr int BytesPerPixel = 3;

qsizetype rowLength(int width) {
  return bytesPerRow(width, 8 * BytesPerPixel);
}

QRgb combined(QRgb ground, QRgb pixel, RasterOperation operation) {
  switch (operation) {
    case RasterOperation::And:
      return ground & pixel;
    case RasterOperation::Or:
      return ground | pixel;
    case RasterOperation::Copy:
      break;
  }
  return pixel;
}

}  // namespace

PixelRows GetDIBits(const QImage& bitmap) {
  const QImage pixels = bitmap.convertToFormat(QImage::Format_ARGB32);
  PixelRows rows{pixels.width(), pixels.height(), {}};
  rows.bytes.reserve(rowLength(rows.Width) * rows.Height);
  for (int y = rows.Height - 1; y >= 0; --y) {
    for (int x = 0; x < rows.Width; ++x) {
      const QRgb pixel = pixels.pixel(x, y);
      const QRgb color = qAlpha(pixel) == 0 ? 0 : pixel;
      rows.bytes.append(static_cast<char>(qBlue(color)))
          .append(static_cast<char>(qGreen(color)))
          .append(static_cast<char>(qRed(color)));
    }
    rows.bytes.append(rowLength(rows.Width) - static_cast<qsizetype>(BytesPerPixel) * rows.Width, '\0');
  }
  return rows;
}

void StretchDIBits(Raster& raster, int x, int y, int width, int height, const PixelRows& rows,
                   RasterOperation operation) {
  const QRect shown = QRect(x, y, width, height) & raster.rect();
  const qsizetype length = rowLength(rows.Width);
  if (width < 1 || height < 1 || rows.bytes.size() < length * rows.Height || rows.bytes.isEmpty()) return;
  for (int row = shown.top(); row <= shown.bottom(); ++row) {
    const qint64 line = rows.Height - 1 - (static_cast<qint64>(row) - y) * rows.Height / height;
    const char* const source = rows.bytes.constData() + line * length;
    QRgb* const pixels = raster.pixelRow(row);
    for (int column = shown.left(); column <= shown.right(); ++column) {
      const char* const bytes = source + (static_cast<qint64>(column) - x) * rows.Width / width * BytesPerPixel;
      pixels[column] = combined(
          pixels[column],
          qRgb(static_cast<quint8>(bytes[2]), static_cast<quint8>(bytes[1]), static_cast<quint8>(bytes[0])), operation);
    }
  }
}

void PaintPicture(Raster& raster, const QImage& picture, int x, int y) {
  PaintPicture(raster, picture, x, y, picture.width(), picture.height());
}

void PaintPicture(Raster& raster, const QImage& picture, int x, int y, int width, int height) {
  if (raster.rect().isEmpty() || picture.isNull() || width < 1 || height < 1) return;
  QImage source = picture;
  source.setDevicePixelRatio(1);
  QPainter painter(&raster.image());
  if (source.width() == width && source.height() == height) {
    painter.drawImage(x, y, source);
    return;
  }
  painter.setClipRect(raster.rect());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRect(x, y, width, height), source);
}

void paintSilhouette(Raster& raster, const QImage& picture, int x, int y, QRgb color) {
  const QRect shown = QRect(QPoint(x, y), picture.size()) & raster.rect();
  for (int row = shown.top(); row <= shown.bottom(); ++row) {
    for (int column = shown.left(); column <= shown.right(); ++column) {
      if (isSeen(picture.pixel(column - x, row - y))) raster.setPixel(column, row, color);
    }
  }
}

void tileRect(Raster& raster, int left, int top, int right, int bottom, const QImage& bitmap) {
  const QRect area = rectangleOf(left, top, right, bottom);
  const QRect shown = area & raster.rect();
  if (bitmap.isNull()) return;
  for (int row = shown.top(); row <= shown.bottom(); ++row) {
    for (int column = shown.left(); column <= shown.right(); ++column) {
      raster.setPixel(column, row,
                      bitmap.pixel((column - area.left()) % bitmap.width(), (row - area.top()) % bitmap.height()));
    }
  }
}

}  // namespace drawing
