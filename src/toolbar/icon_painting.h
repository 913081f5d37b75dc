#pragma once

#include <QRect>

#include "drawing/raster.h"
#include "toolbar/picture.h"

namespace toolbar {

/// The picture in the middle of the area at its own size: grey when disabled; with a shadow it rises a pixel left and
/// up over it.
void DrawIcon(drawing::Raster& raster, const Picture& picture, const QRect& area, bool enabled, bool shadow);

/// The picture in grey, stretched to the size; -1 takes the picture's own. False when there is nothing to draw.
bool PaintGrayScale(drawing::Raster& raster, const Picture& picture, int left, int top, int width = -1,
                    int height = -1);

/// A bitmap repeated over the whole surface, from its top left; any other picture draws nothing.
void TilePicture(drawing::Raster& raster, const Picture& picture);

}  // namespace toolbar
