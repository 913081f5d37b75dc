#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include "drawing/raster.h"

namespace drawing {

// Sizes are whole pixels; points count 96 an inch. A text is one line, shown as it stands.

int TextWidth(const QFont& font, const QString& text);
/// The height of one line.
int TextHeight(const QFont& font);

/// Prints the text with the top left of its first glyph cell at this place, in grey steps of its colour.
void Print(Raster& raster, const QFont& font, const QString& text, int x, int y, QRgb color);

/// Several printings in one font, for the price of little more than one. Nothing else draws on the raster meanwhile.
class TextPen {
 public:
  TextPen(Raster& raster, const QFont& font);

  /// The advance of the text, and the height of one line.
  QSize sizeOf(const QString& text) const;
  /// Prints as the function of that name does.
  void Print(const QString& text, int x, int y, QRgb color);
  /// Cuts off what is printed from now on at the edges of the area.
  void clipTo(const QRect& area);

 private:
  QFont font_;
  QFontMetrics metrics_;
  QPainter painter_;
};

/// Prints the text in the middle of a rectangle's top, cut off at its edges.
void drawText(Raster& raster, const QFont& font, const QString& text, const QRect& area, QRgb color);

}  // namespace drawing
