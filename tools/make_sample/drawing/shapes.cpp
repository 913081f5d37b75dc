#include "drawing/shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace sample {

namespace {

double dot(QPointF a, QPointF b) {
  return a.x() * b.x() + a.y() * b.y();
}

double squaredDistance(QPointF point, QPointF from, QPointF to) {
  const QPointF edge = to - from;
  const double length = dot(edge, edge);
  const double along = length > 0 ? std::clamp(dot(point - from, edge) / length, 0.0, 1.0) : 0;
  const QPointF rest = point - from - edge * along;
  return dot(rest, rest);
}

bool crosses(QPointF point, QPointF from, QPointF to) {
  if ((from.y() > point.y()) == (to.y() > point.y())) return false;
  return point.x() < (to.x() - from.x()) * (point.y() - from.y()) / (to.y() - from.y()) + from.x();
}

}  // namespace

Shape disc(QPointF centre, double radius) {
  return {QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius),
          [=](double x, double y) { return std::hypot(x - centre.x(), y - centre.y()) - radius; }};
}

Shape roundBox(const QRectF& box, double radius) {
  const QPointF centre = box.center();
  return {box, [=](double x, double y) {
            const double dx = std::abs(x - centre.x()) - box.width() / 2 + radius;
            const double dy = std::abs(y - centre.y()) - box.height() / 2 + radius;
            return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) - radius;
          }};
}

Shape line(QPointF from, QPointF to, double radius) {
  return {QRectF(from, to).normalized().adjusted(-radius, -radius, radius, radius), [=](double x, double y) {
            return std::sqrt(squaredDistance({x, y}, from, to)) - radius;
          }};
}

Shape area(const std::vector<QPointF>& points, double radius) {
  QRectF bounds(points.front(), points.front());
  for (const QPointF& point : points) {
    bounds.setCoords(std::min(bounds.left(), point.x()), std::min(bounds.top(), point.y()),
                     std::max(bounds.right(), point.x()), std::max(bounds.bottom(), point.y()));
  }
  return {bounds.adjusted(-radius, -radius, radius, radius), [=](double x, double y) {
            double nearest = std::numeric_limits<double>::max();
            bool inside = false;
            for (size_t i = 0; i < points.size(); ++i) {
              const QPointF& next = points[(i + 1) % points.size()];
              nearest = std::min(nearest, squaredDistance({x, y}, points[i], next));
              if (crosses({x, y}, points[i], next)) inside = !inside;
            }
            return (inside ? -1 : 1) * std::sqrt(nearest) - radius;
          }};
}

Shape star(QPointF centre, double radius) {
  std::vector<QPointF> points;
  for (int i = 0; i < 10; ++i) {
    const double angle = std::numbers::pi * (i / 5.0 - 0.5);
    const double reach = i % 2 == 0 ? radius : radius * 0.45;
    points.emplace_back(centre.x() + reach * std::cos(angle), centre.y() + reach * std::sin(angle));
  }
  return area(points);
}

Shape outline(const Shape& shape, double width) {
  return {shape.bounds.adjusted(-width, -width, width, width),
          [=](double x, double y) { return std::abs(shape.distance(x, y)) - width / 2; }};
}

Shape moved(const Shape& shape, double dx, double dy) {
  return {shape.bounds.translated(dx, dy), [=](double x, double y) { return shape.distance(x - dx, y - dy); }};
}

}  // namespace sample
