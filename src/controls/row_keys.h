#pragma once

#include <optional>

namespace controls {

/// The row that a key leads to from the selected one (-1 without one) in a list that shows `page` rows; none for a key
/// that doesn't move the selection, and in an empty list.
std::optional<int> RowForKey(int key, int selected, int rows, int page);

}  // namespace controls
