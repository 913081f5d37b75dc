#pragma once

#include "drawing/raster.h"

namespace drawing {

enum class Direction { LeftToRight = 0, TopToBottom = 1 };

/// Draws a gradient from the first colour to one step before the second. Corners in the wrong order are swapped; if
/// that turns the gradient round, the colours are swapped with them.
void GradientFill(Raster& raster, int left, int top, int right, int bottom, QRgb first, QRgb second,
                  Direction direction);

/// Draws a gradient that reaches both colours: from left to right (kind 1), from top to bottom (3), from the top left
/// (5) or from the bottom left corner (6). Any other kind is drawn black. Draws nothing for a width or height below 1.
void PaintRamp(Raster& raster, int x, int y, int width, int height, QRgb start, QRgb end, int kind);

}  // namespace drawing
