#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include "drawing/raster.h"

namespace drawing {

// Text on a raster. Sizes are whole pixels, at 96 pixels per inch. A text is drawn as a single line.

int TextWidth(const QFont& font, const QString& text);
/// The height of one line.
int TextHeight(const QFont& font);

/// Draws the text with its top left corner at this place.
void Print(Raster& raster, const QFont& font, const QString& text, int x, int y, QRgb color);

/// Draws several texts in one font, which is faster than drawing each by itself. Nothing else may draw on the raster
/// while it exists.
class TextPen {
 public:
  TextPen(Raster& raster, const QFont& font);

  /// The width of the text and the height of a line.
  QSize sizeOf(const QString& text) const;
  void Print(const QString& text, int x, int y, QRgb color);
  /// Cuts off all further text at the edges of the area.
  void clipTo(const QRect& area);

 private:
  QFont font_;
  QFontMetrics metrics_;
  QPainter painter_;
};

/// Draws the text centred at the top of the rectangle and cut off at its edges.
void drawText(Raster& raster, const QFont& font, const QString& text, const QRect& area, QRgb color);

}  // namespace drawing
