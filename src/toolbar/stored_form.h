#pragma once

#include <optional>
#include <vector>

#include "propertybag/property_bag.h"
#include "toolbar/properties.h"
#include "toolbar/toolbar_button.h"

namespace toolbar {

/// What a bag keeps of a toolbar.
struct StoredToolBar {
  Properties values;
  std::vector<ToolbarButton> buttons;  ///< one at least
  int Button_Index = 1;                ///< written, but never read
};

/// The values of the bag; none when one of them is of a wrong type, or the count of buttons is below 1 or beyond
/// MostButtons.
std::optional<StoredToolBar> readStoredForm(const propertybag::PropertyBag& bag, const QFont& ambientFont);
inline constexpr int MostButtons = 9999;

/// Stores all keys in their order; what equals its default is left out.
void writeStoredForm(propertybag::PropertyBag& bag, const StoredToolBar& toolBar, const QFont& ambientFont);

}  // namespace toolbar
