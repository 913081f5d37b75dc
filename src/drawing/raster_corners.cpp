#include "drawing/raster_corners.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace drawing {

namespace {

/// The insets of a rounded corner, row by row from the top down to the first full row. A pixel belongs to the shape if
/// its centre is at least a quarter of a pixel inside the ellipse.
std::vector<int> cornerInsets(int width, int height) {
  const auto part = [](int pixel, int diameter) {
    const double fromCentre = 2.0 * pixel + 1 - diameter;
    return std::pow(2 * fromCentre / (2.0 * diameter - 1), 2);
  };
  std::vector<int> insets;
  int inset = width / 2;
  for (int y = 0; y < height / 2 && inset > 0; ++y) {
    while (inset > 0 && part(inset - 1, width) + part(y, height) <= 1) --inset;
    insets.push_back(inset);
  }
  return insets;
}

}  // namespace

QRect rectangleOf(int left, int top, int right, int bottom) {
  if (right < left) std::swap(left, right);
  if (bottom < top) std::swap(top, bottom);
  return {QPoint(left, top), QPoint(right - 1, bottom - 1)};
}

RoundedBox::RoundedBox(const QRect& edges, int diameter) : edges_(edges) {
  const qint64 wanted = std::abs(static_cast<qint64>(diameter));
  const auto within = [wanted](int side) { return static_cast<int>(std::min<qint64>(wanted, side)); };
  if (!edges.isEmpty()) insets_ = cornerInsets(within(edges.width()), within(edges.height()));
}

int RoundedBox::inset(int y) const {
  const auto row = static_cast<std::size_t>(std::min(y - edges_.top(), edges_.bottom() - y));
  return row < insets_.size() ? insets_[row] : 0;
}

QRect RoundedBox::row(int y) const {
  if (y < edges_.top() || y > edges_.bottom()) return {};
  const int cut = inset(y);
  return {QPoint(edges_.left() + cut, y), QPoint(edges_.right() - cut, y)};
}

}  // namespace drawing
