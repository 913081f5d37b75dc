#pragma once

#include <vector>

#include <QRect>

namespace drawing {

/// The rectangle between two opposite corners in any order; right and bottom lie outside.
QRect rectangleOf(int left, int top, int right, int bottom);

/// A rectangle whose corners are quarters of an ellipse. The diameter counts without its sign and at most as the
/// rectangle's own width and height.
class RoundedBox {
 public:
  RoundedBox(const QRect& edges, int diameter);

  const QRect& edges() const { return edges_; }
  /// How many pixels of a row inside the rectangle the corner cuts off at each end.
  int inset(int y) const;
  /// What belongs to the shape in a row; empty outside.
  QRect row(int y) const;

 private:
  QRect edges_;
  std::vector<int> insets_;
};

}  // namespace drawing
