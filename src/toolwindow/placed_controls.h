#pragma once

#include <vector>

#include "toolwindow/tool_layout.h"

namespace toolwindow {

/// The controls of the tool window, each with its place in a layout.
class PlacedControls {
 public:
  /// Adds a control under its object name. `spoken` is what a screen reader calls one that shows no name of its own.
  void add(QWidget& control, controls::TwipsRect ToolLayout::*place, const char* name, const char* spoken = "");
  const controls::TwipsRect& placeOf(const QWidget& control, const ToolLayout& layout) const;
  /// Puts all controls to their places.
  void place(const ToolLayout& layout) const;

 private:
  struct Row {
    QWidget* control;
    controls::TwipsRect ToolLayout::*place;
  };
  std::vector<Row> rows_;
};

}  // namespace toolwindow
