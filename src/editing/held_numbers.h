#pragma once

#include <utility>
#include <vector>

#include <QPoint>
#include <QRect>
#include <QString>
#include <Qt>

#include "editing/session.h"

/// The numbers of an object that is moved or sized by hand.
namespace editing {

/// The edges of an object that are dragged. Without any the object is moved.
struct Grip {
  int across = 0;  ///< -1 the left edge, 1 the right one
  int down = 0;    ///< -1 the upper edge, 1 the lower one
  bool sizes() const { return across != 0 || down != 0; }
  bool operator==(const Grip&) const = default;
};

/// The grip of a rectangle at a pixel: along the inner side of its edges.
Grip gripAt(const QRect& place, const QPoint& pixel);

/// The shape of the pointer over a grip.
Qt::CursorShape shapeOf(Grip grip);

/// An object's numbers in the theme when a drag begins. Those that the grip doesn't change are 0.
struct HeldNumbers {
  int X = 0;
  int Y = 0;
  int W = 0;
  int H = 0;
  QString heightKey;        ///< H, or SelectH of a button that is drawn with that; empty for a text
  bool passedOver = false;  ///< the last movement has passed over a place that would mean another one
};

/// The theme as it stands, for the numbers of all that is in hand. A working copy that is gone is made anew first.
/// Throws platform::Failure if it can't be read.
QByteArray readTheme(const Session& session);

/// The numbers of an object as they stand in the theme, fractions rounded. `heightKey` is empty for a text. Throws
/// platform::Failure with the reason why the object can't be moved or sized.
HeldNumbers heldIn(const QByteArray& theme, const QString& object, Grip grip, const QString& heightKey);

/// The movement along its longer direction.
QPoint straight(const QPoint& movement);

/// The numbers after a movement of the grip: whole, -10,000 to 10,000, sizes from 1. An edge that isn't held stays. For
/// a picture or a button -1 would mean its own place, so that -2 and 0 are neighbours.
HeldNumbers moved(const HeldNumbers& start, Grip grip, const QPoint& movement);

/// Keys with values that differ.
std::vector<std::pair<QString, QString>> changedValues(const HeldNumbers& start, const HeldNumbers& now);

/// The numbers that a grip changes: "X 120, Y 48" or "X 120, W 300, SelectH 60".
QString labelOf(const HeldNumbers& numbers, Grip grip);

}  // namespace editing
