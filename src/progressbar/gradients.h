#pragma once

#include "drawing/raster.h"

namespace progressbar {

/// Draws a gradient from left to right (Direction 0) or from top to bottom (1), which ends one step before EndColor.
/// Draws nothing for another direction. Width and Height are the right and bottom edges.
void GradientTwoColour(drawing::Raster& surface, int Direction, quint32 StartColor, quint32 EndColor, int Left, int Top,
                       int Width, int Height);

/// Draws a gradient between the colours of four corners. Here Width and Height are sizes.
void DrawGradientFourColour(drawing::Raster& surface, int Left, int Top, int Width, int Height, quint32 TopLeftColour,
                            quint32 TopRightColour, quint32 BottomLeftColour, quint32 BottomRightColour);

}  // namespace progressbar
