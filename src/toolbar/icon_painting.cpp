#include "toolbar/icon_painting.h"

#include <algorithm>

#include "drawing/raster_pictures.h"
#include "toolbar/checked_numbers.h"

namespace toolbar {

namespace {

constexpr QRgb ShadowColor = qRgb(128, 128, 128);

/// Replaces each three bytes by their mean, regardless of rows and padding. No group starts in the last three bytes.
void turnGrey(QByteArray& bytes) {
  constexpr int Triple = 3;
  auto* const data = reinterpret_cast<uchar*>(bytes.data());
  for (qsizetype i = 0; i <= bytes.size() - 4; i += Triple) {
    std::fill_n(data + i, Triple, (data[i] + data[i + 1] + data[i + 2]) / Triple);
  }
}

}  // namespace

bool PaintGrayScale(drawing::Raster& raster, const Picture& picture, int left, int top, int width, int height) {
  if (picture.pixels.isNull()) return false;
  if (width == -1) width = picture.Width();
  if (height == -1) height = picture.Height();
  drawing::PixelRows grey = drawing::GetDIBits(picture.pixels);
  turnGrey(grey.bytes);
  if (picture.Type != Picture::Icon) {
    StretchDIBits(raster, left, top, width, height, grey);
    return true;
  }
  StretchDIBits(raster, left, top, width, height, drawing::GetDIBits(picture.mask), drawing::RasterOperation::And);
  StretchDIBits(raster, left, top, width, height, grey, drawing::RasterOperation::Or);
  return true;
}

void DrawIcon(drawing::Raster& raster, const Picture& picture, const QRect& area, bool enabled, bool shadow) {
  const int x = nearestInt((area.width() - picture.Width()) / 2.0 + area.x());
  const int y = nearestInt((area.height() - picture.Height()) / 2.0 + area.y());
  if (!enabled) {
    PaintGrayScale(raster, picture, x, y, picture.Width(), picture.Height());
  } else if (shadow) {
    drawing::paintSilhouette(raster, picture.pixels, x + 1, y + 1, ShadowColor);
    drawing::PaintPicture(raster, picture.pixels, x - 1, y - 1);
  } else {
    drawing::PaintPicture(raster, picture.pixels, x, y);
  }
}

void TilePicture(drawing::Raster& raster, const Picture& picture) {
  if (picture.Type != Picture::Bitmap) return;
  drawing::tileRect(raster, 0, 0, raster.Width(), raster.Height(), picture.pixels);
}

}  // namespace toolbar
