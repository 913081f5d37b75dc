#include "drawing/ramps.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "drawing/raster_corners.h"

namespace drawing {

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);

/// Applies the rule to each channel of two colours.
template <typename Rule>
QRgb eachChannel(QRgb first, QRgb second, const Rule& rule) {
  return qRgb(rule(qRed(first), qRed(second)), rule(qGreen(first), qGreen(second)), rule(qBlue(first), qBlue(second)));
}

/// Colour i of a ramp from colour 0 to colour n.
QRgb rampEntry(QRgb start, QRgb end, qint64 i, qint64 n) {
  return eachChannel(start, end, [&](int from, int to) {
    return n == 0 ? from / 2 + to / 2 : static_cast<int>(from + (to - from) * i / n);
  });
}

}  // namespace

void GradientFill(Raster& raster, int left, int top, int right, int bottom, QRgb first, QRgb second,
                  Direction direction) {
  const bool across = direction == Direction::LeftToRight;
  if (across ? right < left : bottom < top) std::swap(first, second);
  const QRect area = rectangleOf(left, top, right, bottom);
  const QRect shown = area & raster.rect();
  if (shown.isEmpty()) return;
  const qint64 n = across ? area.width() : area.height();
  const auto colorAt = [&](qint64 i) {
    return eachChannel(first, second, [&](int a, int b) { return static_cast<int>((a * (n - i) + b * i) / n); });
  };
  if (!across) {
    for (int y = shown.top(); y <= shown.bottom(); ++y) {
      std::fill_n(raster.pixelRow(y) + shown.left(), shown.width(), colorAt(y - area.top()));
    }
    return;
  }
  std::vector<QRgb> line;
  for (int x = shown.left(); x <= shown.right(); ++x) line.push_back(colorAt(x - area.left()));
  for (int y = shown.top(); y <= shown.bottom(); ++y) {
    std::copy(line.begin(), line.end(), raster.pixelRow(y) + shown.left());
  }
}

void PaintRamp(Raster& raster, int x, int y, int width, int height, QRgb start, QRgb end, int kind) {
  const QRect shown = QRect(x, y, width, height) & raster.rect();
  if (width < 1 || height < 1 || shown.isEmpty()) return;
  // `right` and `down` tell how far a pixel to the right and a pixel down move along the ramp; `first` is the ramp
  // entry of the top left pixel.
  const struct {
    int kind;
    int right;
    int down;
    qint64 entries;
    qint64 first;
  } ramps[] = {
      {1, 1, 0, width, 0},
      {3, 0, 1, height, 0},
      {5, 1, 1, static_cast<qint64>(width) + height - 1, 0},
      {6, 1, -1, static_cast<qint64>(width) + height - 1, static_cast<qint64>(height) - 1},
  };
  const auto* const ramp =
      std::find_if(std::begin(ramps), std::end(ramps), [kind](const auto& row) { return row.kind == kind; });
  if (ramp == std::end(ramps)) {
    return raster.FillRect(shown.left(), shown.top(), shown.right() + 1, shown.bottom() + 1, Black);
  }
  const auto place = [&](int column, int row) {
    return ramp->first + (static_cast<qint64>(column) - x) * ramp->right + (static_cast<qint64>(row) - y) * ramp->down;
  };
  const qint64 lowest = std::min(place(shown.left(), shown.top()), place(shown.left(), shown.bottom()));
  const qint64 highest = std::max(place(shown.right(), shown.top()), place(shown.right(), shown.bottom()));
  std::vector<QRgb> colors;
  for (qint64 i = lowest; i <= highest; ++i) colors.push_back(rampEntry(start, end, i, ramp->entries - 1));
  for (int row = shown.top(); row <= shown.bottom(); ++row) {
    QRgb* const pixels = raster.pixelRow(row);
    for (int column = shown.left(); column <= shown.right(); ++column) {
      pixels[column] = colors[place(column, row) - lowest];
    }
  }
}

}  // namespace drawing
