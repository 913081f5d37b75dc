#pragma once

#include "drawing/raster.h"
#include "progressbar/palettes.h"
#include "progressbar/properties.h"

namespace progressbar {

/// Draws the whole bar over the whole raster: two bands of track, two bands of the filled part, outline and caption.
/// What lies outside the rounded bar becomes transparent. A step that fails is left out.
void paint(drawing::Raster& raster, const Properties& bar, const Palette& palette);

}  // namespace progressbar
