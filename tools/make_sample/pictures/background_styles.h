#pragma once

#include "drawing/canvas.h"

namespace sample {

struct Palette {
  Color top, middle, bottom;
  Color light, dark;
};

using BackgroundStyle = void (*)(Canvas& canvas, const Palette& palette, unsigned seed);

void paintHills(Canvas& canvas, const Palette& palette, unsigned seed);
void paintSpots(Canvas& canvas, const Palette& palette, unsigned seed);
void paintLights(Canvas& canvas, const Palette& palette, unsigned seed);
void paintCurtain(Canvas& canvas, const Palette& palette, unsigned seed);
void paintWaves(Canvas& canvas, const Palette& palette, unsigned seed);
void paintRays(Canvas& canvas, const Palette& palette, unsigned seed);
void paintSkyline(Canvas& canvas, const Palette& palette, unsigned seed);
void paintStaff(Canvas& canvas, const Palette& palette, unsigned seed);
void paintTiles(Canvas& canvas, const Palette& palette, unsigned seed);

/// The palette's three colours from top to bottom.
Color skyColor(const Palette& palette, double part);

}  // namespace sample
