#pragma once

#include <optional>
#include <vector>

#include "propertybag/property_bag.h"
#include "toolbar/properties.h"
#include "toolbar/toolbar_button.h"

namespace toolbar {

/// The stored part of a toolbar.
struct StoredToolBar {
  Properties values;
  std::vector<ToolbarButton> buttons;  ///< at least one
  int Button_Index = 1;                ///< written, but never read
};

/// Reads a toolbar from a bag. None if a value is of the wrong type, or if the number of buttons is below 1 or above
/// MostButtons.
std::optional<StoredToolBar> readStoredForm(const propertybag::PropertyBag& bag, const QFont& ambientFont);
inline constexpr int MostButtons = 9999;

/// Stores a toolbar in a bag. Values that equal their default are left out.
void writeStoredForm(propertybag::PropertyBag& bag, const StoredToolBar& toolBar, const QFont& ambientFont);

}  // namespace toolbar
