#pragma once

#include "drawing/raster.h"

namespace toolbar {

/// The pixels that buttons are drawn on, and what a wipe restores.
class ButtonSurface {
 public:
  static constexpr int LargestSide = 16384;

  drawing::Raster& raster() { return image_; }
  const drawing::Raster& raster() const { return image_; }
  int ScaleWidth() const { return image_.Width(); }
  int ScaleHeight() const { return image_.Height(); }

  /// Keeps what is drawn, as far as it fits. Sides above LargestSide are cut.
  void resize(const QSize& size);
  void SetBackColor(QRgb color) { backColor_ = color; }
  /// Back to the picture, or to the back colour without one.
  void Cls();
  /// Without a picture, all in the back colour.
  void clearPicture();
  /// What is drawn now becomes the picture.
  void keepPicture() { picture_ = image_.image(); }

 private:
  drawing::Raster image_;
  QImage picture_;
  QRgb backColor_ = 0xFFFFFFFF;
};

}  // namespace toolbar
