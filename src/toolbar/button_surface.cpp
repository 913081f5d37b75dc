#include "toolbar/button_surface.h"

#include <algorithm>

namespace toolbar {

namespace {

/// Copies the picture to the top left, cut at the raster's edges.
void copyOnto(drawing::Raster& raster, const QImage& picture) {
  for (int y = 0; y < std::min(raster.Height(), picture.height()); ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    std::copy_n(row, std::min(raster.Width(), picture.width()), raster.pixelRow(y));
  }
}

}  // namespace

void ButtonSurface::resize(const QSize& size) {
  const QSize fitting(std::clamp(size.width(), 0, LargestSide), std::clamp(size.height(), 0, LargestSide));
  if (fitting == image_.image().size()) return;
  const QImage before = image_.image();
  image_ = drawing::Raster(fitting, backColor_);
  copyOnto(image_, before);
}

void ButtonSurface::Cls() {
  if (picture_.size() != image_.image().size()) image_.wipe(backColor_);
  copyOnto(image_, picture_);
}

void ButtonSurface::clearPicture() {
  picture_ = QImage();
  image_.wipe(backColor_);
}

}  // namespace toolbar
