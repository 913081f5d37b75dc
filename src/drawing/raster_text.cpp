#include "drawing/raster_text.h"

#include <algorithm>

#include "drawing/fonts.h"

namespace drawing {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72;
constexpr int LargestHeight = static_cast<int>(LargestPoints * PixelsPerPoint);

/// The font with its size in pixels and grey antialiasing.
QFont onPixels(const QFont& font) {
  const int wanted = font.pixelSize() > 0 ? font.pixelSize() : qRound(font.pointSizeF() * PixelsPerPoint);
  const int pixels = std::clamp(wanted, 1, LargestHeight);
  QFont exact = inGreySteps(font);
  if (exact.pixelSize() != pixels) exact.setPixelSize(pixels);
  return exact;
}

}  // namespace

TextPen::TextPen(Raster& raster, const QFont& font) : font_(onPixels(font)), metrics_(font_) {
  if (raster.rect().isEmpty()) return;
  painter_.begin(&raster.image());
  painter_.setFont(font_);
}

QSize TextPen::sizeOf(const QString& text) const {
  return {metrics_.horizontalAdvance(text), metrics_.height()};
}

void TextPen::Print(const QString& text, int x, int y, QRgb color) {
  if (!painter_.isActive()) return;
  painter_.setPen(QColor(color));
  painter_.drawText(x, y + metrics_.ascent(), text);
}

void TextPen::clipTo(const QRect& area) {
  if (painter_.isActive()) painter_.setClipRect(area);
}

int TextWidth(const QFont& font, const QString& text) {
  return QFontMetrics(onPixels(font)).horizontalAdvance(text);
}

int TextHeight(const QFont& font) {
  return QFontMetrics(onPixels(font)).height();
}

void Print(Raster& raster, const QFont& font, const QString& text, int x, int y, QRgb color) {
  TextPen(raster, font).Print(text, x, y, color);
}

void drawText(Raster& raster, const QFont& font, const QString& text, const QRect& area, QRgb color) {
  TextPen pen(raster, font);
  const int spare = area.width() - pen.sizeOf(text).width();
  pen.clipTo(area);
  pen.Print(text, area.left() + spare / 2, area.top(), color);
}

}  // namespace drawing
