#include "drawing/canvas.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

double corner(int x, int y, unsigned seed) {
  unsigned hash = static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U + seed * 2246822519U;
  hash = (hash ^ (hash >> 13)) * 1274126177U;
  return ((hash ^ (hash >> 16)) & 0xffffU) / 65535.0;
}

int toByte(double channel) {
  return static_cast<int>(std::lround(std::clamp(channel, 0.0, 1.0) * 255));
}

}  // namespace

Color mix(const Color& from, const Color& to, double t) {
  t = std::clamp(t, 0.0, 1.0);
  return {from.r + (to.r - from.r) * t, from.g + (to.g - from.g) * t, from.b + (to.b - from.b) * t,
          from.a + (to.a - from.a) * t};
}

double smooth(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

double Dice::next(double from, double to) {
  state_ ^= state_ << 13;
  state_ ^= state_ >> 17;
  state_ ^= state_ << 5;
  return from + (to - from) * (state_ >> 8) / 16777216.0;
}

QPointF Dice::point(const QRectF& within) {
  const double x = next(within.left(), within.right());
  return {x, next(within.top(), within.bottom())};
}

double noise(double x, double y, unsigned seed) {
  const int left = static_cast<int>(std::floor(x));
  const int top = static_cast<int>(std::floor(y));
  const double u = smooth(0, 1, x - left);
  const double v = smooth(0, 1, y - top);
  const double upper = corner(left, top, seed) * (1 - u) + corner(left + 1, top, seed) * u;
  const double lower = corner(left, top + 1, seed) * (1 - u) + corner(left + 1, top + 1, seed) * u;
  return upper * (1 - v) + lower * v;
}

double cloud(double x, double y, unsigned seed) {
  double sum = 0;
  for (int layer = 0; layer < 4; ++layer) {
    const int scale = 1 << layer;
    sum += noise(x * scale, y * scale, seed + static_cast<unsigned>(layer)) / scale;
  }
  return sum / 1.875;
}

Canvas::Canvas(int pixelWidth, int pixelHeight, double unitsWide, double unitsHigh)
    : pixelWidth_(pixelWidth),
      pixelHeight_(pixelHeight),
      unitsWide_(unitsWide),
      unitsHigh_(unitsHigh),
      dots_(static_cast<size_t>(pixelWidth) * static_cast<size_t>(pixelHeight)) {}

void Canvas::shade(const Paint& paint) {
  fill(roundBox(QRectF(0, 0, unitsWide_, unitsHigh_), 0), paint);
}

void Canvas::fill(const Shape& shape, const Paint& paint, double soft) {
  walk(shape, soft, [&](Dot& dot, double x, double y, double cover) { blend(dot, paint(x, y), cover); });
}

void Canvas::fill(const Shape& shape, const Color& color, double soft) {
  walk(shape, soft, [&](Dot& dot, double, double, double cover) { blend(dot, color, cover); });
}

void Canvas::cut(const Shape& shape, double soft) {
  walk(shape, soft, [](Dot& dot, double, double, double cover) {
    const double rest = 1 - cover;
    dot = {dot.r * rest, dot.g * rest, dot.b * rest, dot.a * rest};
  });
}

void Canvas::blend(Dot& dot, const Color& color, double cover) {
  const double alpha = std::clamp(color.a * cover, 0.0, 1.0);
  const double rest = 1 - alpha;
  dot = {dot.r * rest + color.r * alpha, dot.g * rest + color.g * alpha, dot.b * rest + color.b * alpha,
         dot.a * rest + alpha};
}

void Canvas::walk(const Shape& shape, double soft,
                  const std::function<void(Dot&, double x, double y, double cover)>& visit) {
  const double across = pixelWidth_ / unitsWide_;
  const double down = pixelHeight_ / unitsHigh_;
  const double edge = std::max(soft, 1 / across);
  const QRectF reach = shape.bounds.adjusted(-edge, -edge, edge, edge);
  const int left = std::max(0, static_cast<int>(reach.left() * across));
  const int top = std::max(0, static_cast<int>(reach.top() * down));
  const int right = std::min(pixelWidth_, static_cast<int>(std::ceil(reach.right() * across)));
  const int bottom = std::min(pixelHeight_, static_cast<int>(std::ceil(reach.bottom() * down)));
  for (int row = top; row < bottom; ++row) {
    for (int column = left; column < right; ++column) {
      const double x = (column + 0.5) / across;
      const double y = (row + 0.5) / down;
      const double cover = std::clamp(0.5 - shape.distance(x, y) / edge, 0.0, 1.0);
      if (cover > 0)
        visit(dots_[static_cast<size_t>(row) * pixelWidth_ + column], x, y, soft > 0 ? smooth(0, 1, cover) : cover);
    }
  }
}

QImage Canvas::image() const {
  QImage image(pixelWidth_, pixelHeight_, QImage::Format_ARGB32);
  for (int row = 0; row < pixelHeight_; ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
    for (int column = 0; column < pixelWidth_; ++column) {
      const Dot& dot = dots_[static_cast<size_t>(row) * pixelWidth_ + column];
      const int alpha = toByte(dot.a);
      line[column] =
          alpha == 0 ? 0U : qRgba(toByte(dot.r / dot.a), toByte(dot.g / dot.a), toByte(dot.b / dot.a), alpha);
    }
  }
  return image;
}

}  // namespace sample
