#pragma once

#include <QtGlobal>

#include "progressbar/properties.h"

namespace progressbar {

/// The two ends of a ramp.
struct Band {
  quint32 start;
  quint32 end;
};

/// The colours of a bar: each of its two parts has two bands, above each other or side by side.
struct Palette {
  Band trackFirst{};
  Band trackSecond{};
  Band filledFirst{};
  Band filledSecond{};
  quint32 outline = 0;
};

/// Takes the colours of the bar's theme; a theme that doesn't exist changes nothing.
void loadPalette(Palette& palette, const Properties& bar);

/// The grey that a colour has on a disabled bar.
quint32 greyOf(quint32 color);
Palette greyOf(const Palette& palette);

}  // namespace progressbar
