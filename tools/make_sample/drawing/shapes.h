#pragma once

#include <functional>
#include <vector>

#include <QPointF>
#include <QRectF>

namespace sample {

/// A closed figure: how far a point lies from its edge (below 0 inside), and the rectangle it keeps to.
struct Shape {
  QRectF bounds;
  std::function<double(double x, double y)> distance;
};

Shape disc(QPointF centre, double radius);
Shape roundBox(const QRectF& box, double radius);

/// A line of the given half thickness with round ends.
Shape line(QPointF from, QPointF to, double radius);

/// The area between the points, grown by `radius` with round corners.
Shape area(const std::vector<QPointF>& points, double radius = 0);

/// A star with five points, one of them upwards.
Shape star(QPointF centre, double radius);

/// The edge of a figure as a band of the given width.
Shape outline(const Shape& shape, double width);

Shape moved(const Shape& shape, double dx, double dy);

}  // namespace sample
