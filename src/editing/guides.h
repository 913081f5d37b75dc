#pragma once

#include <vector>

#include <QPoint>
#include <QRect>
#include <QString>

#include "editing/held_numbers.h"

/// What edges and centres meet while something is dragged by the mouse.
namespace editing {

/// Something that can be met: another object, or the picture.
struct Guide {
  QString name;
  QRect place;
};

/// A line where something is met.
struct GuideLine {
  bool upright = false;
  int at = 0;    ///< the column of an upright line, the row of a level one
  int from = 0;  ///< its ends, across or down
  int to = 0;
  QString name;  ///< of what is met
  bool operator==(const GuideLine&) const = default;
};

/// A movement that meets what comes near, and the lines of that.
struct MetMovement {
  QPoint by;
  std::vector<GuideLine> lines;
};

/// What the lines meet, as the label beside the hand goes on: ", at MainStatic and the picture". Empty without any.
QString metText(const std::vector<GuideLine>& lines);

/// One drag and its guides.
class Guides {
 public:
  Guides() = default;
  /// `held` is the place of what is dragged by the grip, before the drag.
  Guides(std::vector<Guide> guides, const QRect& held, Grip grip);

  /// The movement that a guide makes of one of the mouse. An axis that the mouse is kept off stays as it is. Where the
  /// drag began nothing is met until it has been left.
  MetMovement met(const QPoint& movement, bool across, bool down);

 private:
  /// Where a guide can be met along one axis.
  struct Stop {
    int at = 0;
    int pixel = 0;  ///< that shows it
    size_t guide = 0;
  };
  /// One axis of the drag.
  struct Axis {
    std::vector<Stop> stops;
    std::vector<int> held;  ///< what may meet one, before the drag
    bool away = false;      ///< the drag has left where it began
  };

  Axis axisOf(bool across, int heldEnd) const;
  void meet(Axis& axis, bool across, int& by, std::vector<GuideLine>& lines) const;

  std::vector<Guide> guides_;
  QRect held_;
  Grip grip_;
  Axis across_;
  Axis down_;
};

}  // namespace editing
