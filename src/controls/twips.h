#pragma once

#include <QRect>
#include <QWidget>

/// Measures of forms: twips, 15 to a pixel. The tables of forms are in twips; here, and nowhere else, they become
/// pixels.
namespace controls {

inline constexpr double TwipsPerPixel = 15;
/// What a window's frame adds to its client size in the rules of sizes, whatever the window manager draws.
inline constexpr double FrameWidth = 120;
inline constexpr double FrameHeight = 360;

/// A place in twips, from the top left of the parent's client area.
struct TwipsRect {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

/// A length rounded to whole pixels.
int toPixels(double twips);
/// The four edges rounded, the sizes their differences.
QRect toPixels(const TwipsRect& place);
/// Puts the widget at its place.
void place(QWidget& widget, const TwipsRect& place);
/// Moves the window, with the caption that the rules give it, to the middle of its screen.
void centreOnScreen(QWidget& window);

}  // namespace controls
