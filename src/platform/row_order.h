#pragma once

#include <cstddef>

namespace platform {

/// Whether a table can be indexed by an enumeration: its rows, each with its own name in `name`, stand in the order of
/// the enumeration and go on to its `last`.
template <typename Rows, typename Row, typename Name>
constexpr bool inOrder(const Rows& rows, Name Row::*name, Name last) {
  if (rows.size() != static_cast<std::size_t>(last) + 1) return false;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].*name != static_cast<Name>(i)) return false;
  }
  return true;
}

}  // namespace platform
