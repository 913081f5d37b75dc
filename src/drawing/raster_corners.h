#pragma once

#include <vector>

#include <QRect>

namespace drawing {

/// The rectangle with these edges, in any order. Right and bottom edges don't belong to it.
QRect rectangleOf(int left, int top, int right, int bottom);

/// A rectangle with rounded corners. The sign of the diameter is ignored; the corners are at most as large as the
/// rectangle.
class RoundedBox {
 public:
  RoundedBox(const QRect& edges, int diameter);

  const QRect& edges() const { return edges_; }
  /// The number of pixels that the corners cut off at each end of a row. The row has to be inside the rectangle.
  int inset(int y) const;
  /// The pixels of a row that belong to the shape; empty outside.
  QRect row(int y) const;

 private:
  QRect edges_;
  std::vector<int> insets_;
};

}  // namespace drawing
