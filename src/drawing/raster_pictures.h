#pragma once

#include <QByteArray>
#include <QImage>

#include "drawing/raster.h"

namespace drawing {

/// The bytes of a bitmap: blue, green, red for each pixel; rows padded to a multiple of four bytes, from bottom to top.
struct PixelRows {
  int Width = 0;
  int Height = 0;
  QByteArray bytes;
};

/// The bytes of a bitmap. Padding bytes are 0, and so are fully transparent pixels.
PixelRows GetDIBits(const QImage& bitmap);

enum class RasterOperation { Copy, And, Or };

/// Draws the bitmap stretched to the rectangle, by repeating or skipping pixels.
void StretchDIBits(Raster& raster, int x, int y, int width, int height, const PixelRows& rows,
                   RasterOperation operation = RasterOperation::Copy);

/// Draws the picture at its own size, blended by its alpha.
void PaintPicture(Raster& raster, const QImage& picture, int x, int y);
/// The same, scaled to a size. Draws nothing for a width or height below 1.
void PaintPicture(Raster& raster, const QImage& picture, int x, int y, int width, int height);

/// Draws the visible pixels of the picture (see isSeen) in one colour.
void paintSilhouette(Raster& raster, const QImage& picture, int x, int y, QRgb color);

/// Fills the rectangle with copies of the bitmap, the first at its top left.
void tileRect(Raster& raster, int left, int top, int right, int bottom, const QImage& bitmap);

}  // namespace drawing
