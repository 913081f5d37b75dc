#pragma once

#include "drawing/raster.h"
#include "progressbar/palettes.h"
#include "progressbar/properties.h"

namespace progressbar {

/// Draws the bar over the whole raster: the track, the filled part, the outline and the caption. Everything outside the
/// rounded outline becomes transparent. A step that fails is skipped.
void paint(drawing::Raster& raster, const Properties& bar, const Palette& palette);

}  // namespace progressbar
