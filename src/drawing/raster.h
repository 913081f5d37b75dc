#pragma once

#include <optional>

#include <QImage>
#include <QRgb>
#include <QSize>

class QPainter;

namespace drawing {

/// The pixels of a control that draws itself. Right and bottom edges don't belong to a shape; edges in the wrong
/// order are swapped; drawing is cut off at the raster's edges.
class Raster {
 public:
  explicit Raster(const QSize& size = {}, QRgb color = 0xFF000000U);

  int Width() const { return image_.width(); }
  int Height() const { return image_.height(); }
  QRect rect() const { return image_.rect(); }
  const QImage& image() const { return image_; }
  /// For painting text and pictures.
  QImage& image() { return image_; }
  /// The pixels of a row.
  QRgb* pixelRow(int y) { return reinterpret_cast<QRgb*>(image_.scanLine(y)); }

  /// Fills the whole raster.
  void wipe(QRgb color);
  void setPixel(int x, int y, QRgb color);
  /// Draws from the first point up to, but without, the second.
  void Line(int x1, int y1, int x2, int y2, QRgb color);
  void FillRect(int left, int top, int right, int bottom, QRgb color);
  /// Draws an outline and, with a fill colour, the inside.
  void Rectangle(int left, int top, int right, int bottom, QRgb outline, std::optional<QRgb> fill = {});
  /// The same with rounded corners of this diameter.
  void RoundRect(int left, int top, int right, int bottom, int diameter, QRgb outline, std::optional<QRgb> fill = {});
  /// Makes all outside a rounded rectangle transparent. The rectangle is one pixel narrower and lower than given.
  void clipToRoundRect(int left, int top, int right, int bottom, int diameter);

 private:
  void fill(const QRect& area, QRgb color);

  QImage image_;
};

/// Paints the raster on a window. The pixels are sharp at whole scale factors and smoothed at others.
void Show(QPainter& painter, const Raster& raster);

}  // namespace drawing
