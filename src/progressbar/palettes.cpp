#include "progressbar/palettes.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace progressbar {

namespace {

constexpr int CustomTheme = 10;
constexpr quint32 Brightest = 255;

constexpr quint32 rgb(quint32 red, quint32 green, quint32 blue) {
  return red | green << 8 | blue << 16;
}

/// The fixed themes. They count from 1.
constexpr Palette Palettes[] = {
    // Sand
    {{rgb(248, 246, 242), rgb(233, 227, 211)},
     {rgb(226, 215, 182), rgb(239, 233, 215)},
     {rgb(251, 244, 223), rgb(239, 213, 133)},
     {rgb(203, 166, 57), rgb(237, 224, 187)},
     rgb(204, 168, 62)},
    // Lime
    {{rgb(247, 248, 242), rgb(231, 233, 211)},
     {rgb(222, 226, 182), rgb(237, 239, 215)},
     {rgb(249, 251, 223), rgb(230, 239, 133)},
     {rgb(190, 203, 57), rgb(233, 237, 187)},
     rgb(192, 204, 62)},
    // Green
    {{rgb(242, 248, 243), rgb(211, 233, 213)},
     {rgb(182, 226, 186), rgb(215, 239, 217)},
     {rgb(223, 251, 225), rgb(133, 239, 142)},
     {rgb(57, 203, 70), rgb(187, 237, 191)},
     rgb(62, 204, 74)},
    // Turquoise
    {{rgb(242, 248, 247), rgb(211, 233, 231)},
     {rgb(182, 226, 222), rgb(215, 239, 237)},
     {rgb(223, 251, 249), rgb(133, 239, 230)},
     {rgb(57, 203, 190), rgb(187, 237, 233)},
     rgb(62, 204, 192)},
    // Blue
    {{rgb(243, 242, 248), rgb(213, 211, 233)},
     {rgb(186, 182, 226), rgb(217, 215, 239)},
     {rgb(225, 223, 251), rgb(142, 133, 239)},
     {rgb(70, 57, 203), rgb(191, 187, 237)},
     rgb(74, 62, 204)},
    // Magenta
    {{rgb(248, 242, 247), rgb(233, 211, 231)},
     {rgb(226, 182, 222), rgb(239, 215, 237)},
     {rgb(251, 223, 249), rgb(239, 133, 230)},
     {rgb(203, 57, 190), rgb(237, 187, 233)},
     rgb(204, 62, 192)},
    // Red
    {{rgb(248, 242, 242), rgb(233, 211, 211)},
     {rgb(226, 182, 182), rgb(239, 215, 215)},
     {rgb(251, 223, 223), rgb(239, 133, 133)},
     {rgb(203, 57, 57), rgb(237, 187, 187)},
     rgb(204, 62, 62)},
    // Sky
    {{rgb(250, 253, 254), rgb(228, 243, 252)},
     {rgb(199, 230, 249), rgb(237, 247, 253)},
     {rgb(225, 247, 255), rgb(67, 208, 255)},
     {rgb(63, 112, 233), rgb(63, 226, 246)},
     rgb(23, 139, 211)},
    // Meadow
    {{rgb(231, 243, 232), rgb(225, 219, 225)},
     {rgb(179, 189, 179), rgb(226, 238, 226)},
     {rgb(223, 251, 223), rgb(108, 255, 108)},
     {rgb(26, 228, 26), rgb(217, 244, 217)},
     rgb(188, 184, 188)},
};
static_assert(std::size(Palettes) == CustomTheme - 1);

quint32 lighter(quint32 color, quint32 by) {
  const auto channel = [&](int shift) { return std::min((color >> shift & 0xFF) + by, Brightest); };
  return rgb(channel(0), channel(8), channel(16));
}

Band lightBand(quint32 color) {
  return {lighter(color, 180), lighter(color, 50)};
}

Band fullBand(quint32 color) {
  return {color, lighter(color, 80)};
}

}  // namespace

void loadPalette(Palette& palette, const Properties& bar) {
  if (bar.Theme >= 1 && bar.Theme <= std::ssize(Palettes)) {
    palette = Palettes[bar.Theme - 1];
  } else if (bar.Theme == CustomTheme) {
    const quint32 filled = bar.PBSCustomeColor1;
    const quint32 track = bar.PBSCustomeColor2;
    palette = {lightBand(track), fullBand(track), lightBand(filled), fullBand(filled), filled};
  }
}

quint32 greyOf(quint32 color) {
  // By definition of this grey, green and blue include the lower channels as fractions. So white would be too bright.
  const double red = color % 0x100;
  const double green = std::nearbyint(color % 0x10000 / 256.0);
  const double blue = std::nearbyint(color / 65536.0);
  const auto level = static_cast<quint32>(std::min<double>(std::nearbyint((red + green + blue) / 3), Brightest));
  return rgb(level, level, level);
}

Palette greyOf(const Palette& palette) {
  const auto grey = [](const Band& band) { return Band{greyOf(band.start), greyOf(band.end)}; };
  return {grey(palette.trackFirst), grey(palette.trackSecond), grey(palette.filledFirst), grey(palette.filledSecond),
          greyOf(palette.outline)};
}

}  // namespace progressbar
