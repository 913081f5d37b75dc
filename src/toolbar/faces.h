#pragma once

#include <QRect>

#include "drawing/raster.h"
#include "toolbar/properties.h"

/// Draws the boxes and gradients of the toolbar. The kinds of gradients: 0 none, 1 from left to right, 2 from left to
/// the middle and back, 3 from top to bottom, 4 from the top to the middle and back, 5 from the top left corner, 6 from
/// the bottom left corner; any other is black.
namespace toolbar {

/// Draws a gradient from `second` to `first`. Equal colours give a plain box.
void FillGradient(drawing::Raster& raster, const QRect& box, quint32 first, quint32 second, int kind);

/// Draws a box with raised or pressed edges: one line wide in style 0, two lines in styles 1 and 2.
void Draw3DBox(drawing::Raster& raster, const Properties& values, quint32 color, const QRect& box, bool pressed,
               int style);

/// How the face of a button changes what is drawn on it.
struct Face {
  int offset = 0;       ///< moves the icon right and down, in pixels
  bool shadow = false;  ///< the icon has a shadow
  int shrink = 0;       ///< makes the button's box narrower and lower, in pixels
};
/// Draws the face of a button in the look of ButtonsMode.
Face drawFace(drawing::Raster& raster, const Properties& values, const QRect& button, bool hover, bool pressed);

}  // namespace toolbar
