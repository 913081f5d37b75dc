#pragma once

#include <QMouseEvent>

#include "toolbar/control.h"
#include "toolbar/tool_bar_windows.h"

namespace toolbar {

/// Turns mouse events of the two surfaces into the order that the control expects: a move before each press, a click
/// after each release, and a single leave, even while a button is held.
class MouseDelivery {
 public:
  MouseDelivery(Control& control, ToolBarWindows& windows) : control_(control), windows_(windows) {}

  /// Returns whether it was a mouse event.
  bool deliver(SurfaceName surface, const QRect& area, QEvent* event);

 private:
  void move(SurfaceName surface, const QMouseEvent& event, QPoint place, int buttons);
  void movedTo(SurfaceName surface, const QRect& area, const QMouseEvent& event);
  void pressed(SurfaceName surface, const QMouseEvent& event);
  void released(SurfaceName surface, const QRect& area, const QMouseEvent& event);
  void leave(SurfaceName surface);

  struct Place {
    SurfaceName surface;
    QPoint point;
    bool operator==(const Place&) const = default;
  };
  Control& control_;
  ToolBarWindows& windows_;
  std::optional<Place> lastMove_;
  std::optional<SurfaceName> clickBegan_;
};

}  // namespace toolbar
