#pragma once

#include <optional>

#include <QImage>
#include <QRgb>
#include <QSize>

class QPainter;

namespace drawing {

/// A surface of opaque pixels for a control that draws itself. Right and bottom edges lie outside, edges given in the
/// wrong order are swapped, and what falls outside the surface is left out.
class Raster {
 public:
  explicit Raster(const QSize& size = {}, QRgb color = 0xFF000000U);

  int Width() const { return image_.width(); }
  int Height() const { return image_.height(); }
  QRect rect() const { return image_.rect(); }
  const QImage& image() const { return image_; }
  /// The pixels themselves, for text and pictures.
  QImage& image() { return image_; }
  /// The pixels of a row, as many as the surface is wide.
  QRgb* pixelRow(int y) { return reinterpret_cast<QRgb*>(image_.scanLine(y)); }

  /// The whole surface in one colour.
  void wipe(QRgb color);
  void setPixel(int x, int y, QRgb color);
  /// From the first point to the second, the second left out.
  void Line(int x1, int y1, int x2, int y2, QRgb color);
  void FillRect(int left, int top, int right, int bottom, QRgb color);
  /// An outline, and the inside when it has a colour.
  void Rectangle(int left, int top, int right, int bottom, QRgb outline, std::optional<QRgb> fill = {});
  /// The same with rounded corners, quarters of an ellipse of this diameter.
  void RoundRect(int left, int top, int right, int bottom, int diameter, QRgb outline, std::optional<QRgb> fill = {});
  /// Makes transparent what lies outside the region of a rounded rectangle. The region ends one pixel short of the
  /// given right and bottom.
  void clipToRoundRect(int left, int top, int right, int bottom, int diameter);

 private:
  void fill(const QRect& area, QRgb color);

  QImage image_;
};

/// Puts the raster on a window, a pixel a unit: sharp at whole scale factors, smooth at others.
void Show(QPainter& painter, const Raster& raster);

}  // namespace drawing
