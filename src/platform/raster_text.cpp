#include "platform/raster_text.h"

#include <algorithm>

namespace platform {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72;
constexpr int LargestPixels = 2880;
constexpr auto GreySteps = QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias);

/// The font in pixels, without hinting and colour fringes.
QFont onPixels(const QFont& font) {
  const int wanted = font.pixelSize() > 0 ? font.pixelSize() : qRound(font.pointSizeF() * PixelsPerPoint);
  const int pixels = std::clamp(wanted, 1, LargestPixels);
  if (font.pixelSize() == pixels && font.hintingPreference() == QFont::PreferNoHinting &&
      font.styleStrategy() == GreySteps) {
    return font;
  }
  QFont exact = font;
  exact.setPixelSize(pixels);
  exact.setHintingPreference(QFont::PreferNoHinting);
  exact.setStyleStrategy(GreySteps);
  return exact;
}

}  // namespace

TextPen::TextPen(Raster& raster, const QFont& font) : font_(onPixels(font)), metrics_(font_) {
  if (raster.rect().isEmpty()) return;
  painter_.begin(&raster.image());
  painter_.setFont(font_);
}

QSize TextPen::SizeOf(const QString& text) const {
  return {metrics_.horizontalAdvance(text), metrics_.height()};
}

void TextPen::Print(const QString& text, int x, int y, QRgb color) {
  if (!painter_.isActive()) return;
  painter_.setPen(QColor(color));
  painter_.drawText(x, y + metrics_.ascent(), text);
}

void TextPen::ClipTo(const QRect& area) {
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

void DrawText(Raster& raster, const QFont& font, const QString& text, const QRect& area, QRgb color, TextAlign align) {
  TextPen pen(raster, font);
  const int spare = area.width() - pen.SizeOf(text).width();
  const int shift = align == TextAlign::Left ? 0 : align == TextAlign::Right ? spare : spare / 2;
  pen.ClipTo(area);
  pen.Print(text, area.left() + shift, area.top(), color);
}

}  // namespace platform
