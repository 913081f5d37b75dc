#include "drawing/raster.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "drawing/raster_corners.h"

namespace drawing {

namespace {

constexpr QRgb Opaque = 0xFF000000U;

}  // namespace

Raster::Raster(const QSize& size, QRgb color) : image_(size, QImage::Format_ARGB32_Premultiplied) {
  wipe(color);
}

void Raster::wipe(QRgb color) {
  image_.fill(color | Opaque);
}

void Raster::setPixel(int x, int y, QRgb color) {
  fill(QRect(x, y, 1, 1), color);
}

void Raster::Line(int x1, int y1, int x2, int y2, QRgb color) {
  if (y1 == y2) return fill(QRect(QPoint(x2 < x1 ? x2 + 1 : x1, y1), QPoint(x2 < x1 ? x1 : x2 - 1, y1)), color);
  if (x1 == x2) return fill(QRect(QPoint(x1, y2 < y1 ? y2 + 1 : y1), QPoint(x1, y2 < y1 ? y1 : y2 - 1)), color);
  const double width = static_cast<double>(x2) - x1;
  const double height = static_cast<double>(y2) - y1;
  const double steps = std::max(std::abs(width), std::abs(height));
  for (double i = 0; i < steps; ++i) {
    setPixel(static_cast<int>(std::lrint(x1 + i * width / steps)),
             static_cast<int>(std::lrint(y1 + i * height / steps)), color);
  }
}

void Raster::FillRect(int left, int top, int right, int bottom, QRgb color) {
  fill(rectangleOf(left, top, right, bottom), color);
}

void Raster::Rectangle(int left, int top, int right, int bottom, QRgb outline, std::optional<QRgb> fill) {
  RoundRect(left, top, right, bottom, 0, outline, fill);
}

void Raster::RoundRect(int left, int top, int right, int bottom, int diameter, QRgb outline, std::optional<QRgb> fill) {
  const RoundedBox box(rectangleOf(left, top, right, bottom), diameter);
  const QRect& edges = box.edges();
  for (int y = std::max(edges.top(), 0); y <= std::min(edges.bottom(), Height() - 1); ++y) {
    const int inset = box.inset(y);
    // In a row the outline covers what the corner cuts off from the row above or below, and at least one pixel.
    const int covered = y == edges.top() || y == edges.bottom()
                            ? edges.width() - inset
                            : std::max({box.inset(y - 1), box.inset(y + 1), inset + 1});
    const int first = edges.left() + inset;
    const int last = edges.right() - inset;
    const int inside = edges.left() + covered;
    const int behind = edges.right() - covered + 1;
    if (inside >= behind) {
      this->fill(QRect(QPoint(first, y), QPoint(last, y)), outline);
      continue;
    }
    this->fill(QRect(QPoint(first, y), QPoint(inside - 1, y)), outline);
    this->fill(QRect(QPoint(behind, y), QPoint(last, y)), outline);
    if (fill) this->fill(QRect(QPoint(inside, y), QPoint(behind - 1, y)), *fill);
  }
}

void Raster::clipToRoundRect(int left, int top, int right, int bottom, int diameter) {
  const RoundedBox box(rectangleOf(left, top, right, bottom).adjusted(0, 0, -1, -1), diameter);
  for (int y = 0; y < Height(); ++y) {
    const QRect row = box.row(y) & QRect(0, y, Width(), 1);
    QRgb* const pixels = pixelRow(y);
    std::fill(pixels, pixels + (row.isEmpty() ? Width() : row.left()), 0U);
    if (!row.isEmpty()) std::fill(pixels + row.right() + 1, pixels + Width(), 0U);
  }
}

void Raster::fill(const QRect& area, QRgb color) {
  const QRect shown = area & rect();
  for (int y = shown.top(); y <= shown.bottom(); ++y) {
    std::fill_n(pixelRow(y) + shown.left(), shown.width(), color | Opaque);
  }
}

void Show(QPainter& painter, const Raster& raster) {
  const double scale = painter.device()->devicePixelRatioF();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != std::floor(scale));
  painter.drawImage(0, 0, raster.image());
}

}  // namespace drawing
