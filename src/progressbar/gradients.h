#pragma once

#include "drawing/raster.h"

namespace progressbar {

/// A ramp over the rectangle with the corners (Left, Top) and (Width, Height), from left to right (Direction 0) or from
/// top to bottom (1); nothing for another direction. It ends one step short of its end colour.
void GradientTwoColour(drawing::Raster& surface, int Direction, quint32 StartColor, quint32 EndColor, int Left, int Top,
                       int Width, int Height);

/// Fills the rectangle of Width x Height pixels at (Left, Top) from the colours of its four corners.
void DrawGradientFourColour(drawing::Raster& surface, int Left, int Top, int Width, int Height, quint32 TopLeftColour,
                            quint32 TopRightColour, quint32 BottomLeftColour, quint32 BottomRightColour);

}  // namespace progressbar
