#pragma once

#include <QRect>
#include <QWidget>

/// Forms are laid out in twips, 15 to a pixel. Only the functions here turn them into pixels.
namespace controls {

inline constexpr double TwipsPerPixel = 15;
/// Size of a window's frame in the layout rules, in twips. The frame that the window manager draws doesn't count.
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
/// A place in pixels: each edge is rounded, and the size is the difference of the edges.
QRect toPixels(const TwipsRect& place);
/// Puts the widget at its place.
void place(QWidget& widget, const TwipsRect& place);
/// Moves the window to the middle of its screen, counting the frame's size from above.
void centreOnScreen(QWidget& window);

}  // namespace controls
