#pragma once

#include <optional>
#include <vector>

#include <QPoint>
#include <QPointF>
#include <QSize>

#include "toolbar/model.h"

/// The places of the buttons. Drawing starts inside the frame, but the hit test of a row starts at x 0, and in the
/// popup at (0, 0).
namespace toolbar {

/// The results of a layout besides the places of the buttons.
struct Layout {
  std::vector<int> HiddenButtons;  ///< the buttons in the popup, in their order
  QSize popup;                     ///< size of the popup; stays as it was without hidden buttons
};

/// The width at the right end that is kept for the chevron, and that of its button.
inline constexpr int ChevronZone = 12;
inline constexpr int ChevronWidth = 10;

// These throw std::exception if a row has a length of 0 or a measure is out of the range of an int.
/// The top left corner of the n-th item.
QPoint PlaceButton(const Model& model, int n, bool inPopup);
/// The number of the item at a point, or -1. A point on an edge belongs to no item.
int HitTest(const Model& model, int x, int y, bool inPopup);
/// Whether a point of the strip is on the chevron.
bool isOnChevron(const Model& model, const Layout& layout, const QSize& inner, const QPointF& place);
/// The number of the button at a pixel. In the strip -1 for no button; none where the popup has no button.
std::optional<int> buttonAt(const Model& model, const Layout& layout, const QPoint& pixel, bool inPopup);
/// Whether the pointer highlights the button under it, at `x` of the surface.
bool canHover(const Model& model, int number, double x, bool inPopup);
/// The buttons of the strip or of the popup that keys can reach, and 0 for the chevron.
std::vector<int> placesForKeys(const Model& model, const Layout& layout, bool inPopup);

/// The control's height.
int laidOutHeight(const Model& model);
/// What happens to a button that has no room in the strip while ShowChevron is set.
enum class Overflow {
  Hides,  ///< it moves into the popup
  Stays,  ///< it is cut off: in a form's designer
};
/// Sets the place of every button. After a failure, the places set so far stay.
void layOutButtons(Model& model, int innerWidth, Overflow overflow, Layout& layout);

}  // namespace toolbar
