#include "toolwindow/placed_controls.h"

#include <algorithm>

#include "controls/spoken_name.h"

namespace toolwindow {

void PlacedControls::add(QWidget& control, controls::TwipsRect ToolLayout::*place, const char* name,
                         const char* spoken) {
  control.setObjectName(QLatin1StringView(name));
  controls::setSpokenName(control, QLatin1StringView(spoken));
  rows_.push_back({&control, place});
}

const controls::TwipsRect& PlacedControls::placeOf(const QWidget& control, const ToolLayout& layout) const {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const Row& each) { return each.control == &control; });
  return layout.*row->place;
}

void PlacedControls::place(const ToolLayout& layout) const {
  for (const Row& row : rows_) controls::place(*row.control, layout.*row.place);
}

}  // namespace toolwindow
