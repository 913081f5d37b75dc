#pragma once

#include <functional>
#include <vector>

#include <QImage>

#include "drawing/shapes.h"

namespace sample {

/// A colour with channels from 0 to 1, not multiplied by its alpha.
struct Color {
  double r = 0, g = 0, b = 0, a = 1;
};

/// The colour of 0xRRGGBB.
constexpr Color rgb(unsigned value, double alpha = 1) {
  return {(value >> 16 & 255) / 255.0, (value >> 8 & 255) / 255.0, (value & 255) / 255.0, alpha};
}

/// The colour with another alpha.
constexpr Color faded(Color color, double alpha) {
  color.a = alpha;
  return color;
}

Color mix(const Color& from, const Color& to, double t);

/// 0 below `from`, 1 above `to`, a smooth way between.
double smooth(double from, double to, double value);

/// Numbers that look like chance and are the same at every run.
class Dice {
 public:
  explicit Dice(unsigned seed) : state_(seed * 2654435761U + 88675123U) {}
  double next(double from = 0, double to = 1);
  QPointF point(const QRectF& within);

 private:
  unsigned state_;
};

/// Noise from 0 to 1 that changes smoothly over a distance of 1.
double noise(double x, double y, unsigned seed);

/// Four layers of it, each half as wide and half as strong as the one before.
double cloud(double x, double y, unsigned seed);

using Paint = std::function<Color(double x, double y)>;

/// A picture painted by maths alone. Its units are chosen apart from its pixels: a canvas of 400 pixels and 800 units
/// shows everything at half size.
class Canvas {
 public:
  Canvas(int pixelWidth, int pixelHeight, double unitsWide, double unitsHigh);
  Canvas(int width, int height) : Canvas(width, height, width, height) {}

  double width() const { return unitsWide_; }
  double height() const { return unitsHigh_; }

  void shade(const Paint& paint);

  /// `soft` is the width of the edge in units, at least one pixel.
  void fill(const Shape& shape, const Paint& paint, double soft = 0);
  void fill(const Shape& shape, const Color& color, double soft = 0);
  void cut(const Shape& shape, double soft = 0);

  QImage image() const;

 private:
  struct Dot {
    double r = 0, g = 0, b = 0, a = 0;  // channels multiplied by a
  };

  void blend(Dot& dot, const Color& color, double cover);
  void walk(const Shape& shape, double soft, const std::function<void(Dot&, double x, double y, double cover)>& visit);

  int pixelWidth_;
  int pixelHeight_;
  double unitsWide_;
  double unitsHigh_;
  std::vector<Dot> dots_;
};

}  // namespace sample
