#pragma once

#include <QRect>

#include "drawing/raster.h"
#include "toolbar/picture.h"

namespace toolbar {

/// Draws the picture centred in the area at its own size. Disabled, it is grey. With a shadow, it moves a pixel left
/// and up, and the shadow a pixel right and down.
void DrawIcon(drawing::Raster& raster, const Picture& picture, const QRect& area, bool enabled, bool shadow);

/// Draws the picture in grey, stretched to the size; -1 stands for the picture's own. False if the picture is empty.
bool PaintGrayScale(drawing::Raster& raster, const Picture& picture, int left, int top, int width = -1,
                    int height = -1);

/// Fills the raster with copies of a bitmap. Draws nothing for any other kind of picture.
void TilePicture(drawing::Raster& raster, const Picture& picture);

}  // namespace toolbar
