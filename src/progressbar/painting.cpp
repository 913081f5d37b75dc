#include "progressbar/painting.h"

#include <cmath>
#include <exception>

#include "drawing/system_colours.h"
#include "progressbar/caption.h"
#include "progressbar/gradients.h"

namespace progressbar {

namespace {

enum Orientation { Horizontal = 1, Vertical = 2 };

/// What the steps of the painting work on.
struct Sheet {
  drawing::Raster& raster;
  const Properties& bar;
  Palette palette;
  double percent;
};

int rounded(double number) {
  return static_cast<int>(std::lrint(number));
}

void clear(const Sheet& sheet) {
  sheet.raster.wipe(drawing::colorOf(drawing::ButtonFaceColor).rgb());
}

/// Draws an upper and a lower band from the left edge to x = length.
void bandsAcross(const Sheet& sheet, int length, const Band& upper, const Band& lower) {
  const int height = sheet.raster.Height();
  const int middle = rounded(height / 2.0);
  GradientTwoColour(sheet.raster, 1, upper.start, upper.end, 0, 0, length, middle);
  GradientTwoColour(sheet.raster, 1, lower.start, lower.end, 0, middle, length, height);
}

/// Draws a left and a right band from the top edge to y = length.
void bandsDown(const Sheet& sheet, int length, const Band& left, const Band& right) {
  const int width = sheet.raster.Width();
  const int middle = rounded(width / 2.0);
  GradientTwoColour(sheet.raster, 0, left.start, left.end, 0, 0, middle, length);
  GradientTwoColour(sheet.raster, 0, right.start, right.end, middle, 0, width, length);
}

void fill(const Sheet& sheet) {
  const bool across = sheet.bar.Orientations == Horizontal;
  if (!across && sheet.bar.Orientations != Vertical) return;
  const auto bands = across ? bandsAcross : bandsDown;
  const int length = across ? sheet.raster.Width() : sheet.raster.Height();
  bands(sheet, length, sheet.palette.trackFirst, sheet.palette.trackSecond);
  if (sheet.bar.Value < 1) return;
  bands(sheet, rounded(sheet.percent * length / 100), sheet.palette.filledFirst, sheet.palette.filledSecond);
}

void outline(const Sheet& sheet) {
  sheet.raster.RoundRect(0, 0, sheet.raster.Width() - 1, sheet.raster.Height() - 1, sheet.bar.RoundedValue,
                         drawing::colorOf(sheet.palette.outline).rgb());
}

void caption(const Sheet& sheet) {
  paintCaption(sheet.raster, sheet.bar, captionText(sheet.bar, sheet.percent));
}

void clip(const Sheet& sheet) {
  sheet.raster.clipToRoundRect(0, 0, sheet.raster.Width(), sheet.raster.Height(), sheet.bar.RoundedValue);
}

constexpr void (*Steps[])(const Sheet&) = {clear, fill, outline, caption, clip};

}  // namespace

void paint(drawing::Raster& raster, const Properties& bar, const Palette& palette) {
  const Sheet sheet{raster, bar, bar.Enabled ? palette : greyOf(palette), bar.Value * 100.0 / bar.max};
  for (const auto step : Steps) {
    try {
      step(sheet);
    } catch (const std::exception&) {
      continue;  // the next steps are still drawn
    }
  }
}

}  // namespace progressbar
