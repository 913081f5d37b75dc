#pragma once

#include "drawing/raster.h"

namespace drawing {

enum class Direction { LeftToRight = 0, TopToBottom = 1 };

/// A ramp that starts at the first colour and ends one step short of the second. Corners given in the wrong order are
/// swapped, and along the ramp their colours with them.
void GradientFill(Raster& raster, int left, int top, int right, int bottom, QRgb first, QRgb second,
                  Direction direction);

/// A ramp that reaches both its colours: from left to right (kind 1), from top to bottom (3), from the top left (5) and
/// from the bottom left (6). Any other kind is black. Nothing with a width or a height below 1.
void PaintRamp(Raster& raster, int x, int y, int width, int height, QRgb start, QRgb end, int kind);

}  // namespace drawing
