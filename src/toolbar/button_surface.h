#pragma once

#include "drawing/raster.h"

namespace toolbar {

/// The pixels that buttons are drawn on, and the background that Cls restores.
class ButtonSurface {
 public:
  static constexpr int LargestSide = 16384;

  drawing::Raster& raster() { return image_; }
  const drawing::Raster& raster() const { return image_; }
  int ScaleWidth() const { return image_.Width(); }
  int ScaleHeight() const { return image_.Height(); }

  /// Keeps what is drawn, cut at the new edges. No side becomes longer than LargestSide.
  void resize(const QSize& size);
  void SetBackColor(QRgb color) { backColor_ = color; }
  /// Restores the background picture, or else the back colour.
  void Cls();
  /// Drops the background picture and fills the surface with the back colour.
  void clearPicture();
  /// Makes what is drawn now the background picture.
  void keepPicture() { picture_ = image_.image(); }

 private:
  drawing::Raster image_;
  QImage picture_;
  QRgb backColor_ = 0xFFFFFFFF;
};

}  // namespace toolbar
