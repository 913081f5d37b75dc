#pragma once

#include <QRect>

#include "drawing/raster.h"
#include "toolbar/properties.h"

/// Boxes, gradients and lines of the toolbar. Gradients have a kind: 0 none, 1 from left to right, 3 from top to
/// bottom, 2 and 4 the same to the middle and back, 5 and 6 from the top left and the bottom left corner; others are
/// black.
namespace toolbar {

/// The ramp starts at `second` and ends at `first`; equal colours give a plain box.
void FillGradient(drawing::Raster& raster, const QRect& box, quint32 first, quint32 second, int kind);

/// A box with raised or pressed edges: style 0 with one edge line, 1 and 2 with two.
void Draw3DBox(drawing::Raster& raster, const Properties& values, quint32 color, const QRect& box, bool pressed,
               int style);

/// The face of a button in the look of ButtonsMode, and what it does to the icon.
struct Face {
  int offset = 0;  ///< pixels right and down
  bool shadow = false;
  int shrink = 0;  ///< pixels that the button is narrower and lower from here on
};
Face drawFace(drawing::Raster& raster, const Properties& values, const QRect& button, bool hover, bool pressed);

}  // namespace toolbar
