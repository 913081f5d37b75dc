#pragma once

#include <QByteArray>
#include <QImage>

#include "drawing/raster.h"

namespace drawing {

/// A bitmap as bytes: rows of blue, green, red, each row filled up to whole groups of four bytes, the bottom row first.
struct PixelRows {
  int Width = 0;
  int Height = 0;
  QByteArray bytes;
};

/// The bytes of a bitmap; the alignment bytes are 0, and so is the colour of a pixel that is wholly transparent.
PixelRows GetDIBits(const QImage& bitmap);

enum class RasterOperation { Copy, And, Or };

/// The whole bitmap, stretched to the rectangle by repeating or leaving out pixels.
void StretchDIBits(Raster& raster, int x, int y, int width, int height, const PixelRows& rows,
                   RasterOperation operation = RasterOperation::Copy);

/// The picture at its own size, blended by its alpha.
void PaintPicture(Raster& raster, const QImage& picture, int x, int y);
/// The same stretched to a size. Nothing with a width or a height below 1.
void PaintPicture(Raster& raster, const QImage& picture, int x, int y, int width, int height);

/// The shape of the picture in one colour: the pixels whose alpha is at least a half, so all of one without alpha.
void paintSilhouette(Raster& raster, const QImage& picture, int x, int y, QRgb color);

/// Fills the rectangle with copies of the bitmap, the first at its top left.
void tileRect(Raster& raster, int left, int top, int right, int bottom, const QImage& bitmap);

}  // namespace drawing
