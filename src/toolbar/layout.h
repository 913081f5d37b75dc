#pragma once

#include <vector>

#include <QPoint>
#include <QSize>

#include "toolbar/model.h"

/// Where the buttons lie. Drawing and pointing count from different corners: each row of the hit test begins at x 0,
/// and in the popup it counts from (0, 0).
namespace toolbar {

/// What the layout finds besides the places of the buttons.
struct Layout {
  std::vector<int> HiddenButtons;  ///< shown in the popup, in order
  QSize popup;                     ///< changed only with hidden buttons
};

/// The right part of the control that belongs to the chevron when there is one, and the width of its button.
inline constexpr int ChevronZone = 12;
inline constexpr int ChevronWidth = 10;

// These throw std::exception when a row holds no items or a measure leaves the range of an int.
/// Corner of the n-th item.
QPoint PlaceButton(const Model& model, int n, bool inPopup);
/// 1-based place of the item under a point, -1 for none. A point on an edge belongs to no item.
int HitTest(const Model& model, int x, int y, bool inPopup);

/// The control's height.
int laidOutHeight(const Model& model);
/// What becomes of a button without room in the strip, where ShowChevron is set.
enum class Overflow {
  Hides,  ///< it moves into the popup
  Stays,  ///< it is cut: in a form's designer
};
/// Gives every button its place. What was done before a failure stays.
void layOutButtons(Model& model, int innerWidth, Overflow overflow, Layout& layout);

}  // namespace toolbar
