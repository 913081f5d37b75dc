#pragma once

#include <QtGlobal>

#include "progressbar/properties.h"

namespace progressbar {

/// The two colours of a gradient.
struct Band {
  quint32 start;
  quint32 end;
};

/// The colours of a bar. Track and filled part have two bands each: upper and lower, or left and right.
struct Palette {
  Band trackFirst{};
  Band trackSecond{};
  Band filledFirst{};
  Band filledSecond{};
  quint32 outline = 0;
};

/// Sets the colours of the bar's theme. An unknown theme changes nothing.
void loadPalette(Palette& palette, const Properties& bar);

/// The grey that replaces a colour on a disabled bar.
quint32 greyOf(quint32 color);
Palette greyOf(const Palette& palette);

}  // namespace progressbar
