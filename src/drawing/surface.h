#pragma once

#include <optional>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRect>
#include <QString>

namespace drawing {

/// What stays on a surface from one text to the next.
struct Pen {
  float x = 0;
  float y = 0;
  QColor color;
  QString face;
  float points = 0;
};

/// The preview's raster of 800 x 600 pixels that keeps what has been drawn on it, with a pen for text. Each drawing
/// call adds its rectangle to what still has to be shown.
class Surface {
 public:
  static constexpr int Width = 800;
  static constexpr int Height = 600;

  Surface();

  const QImage& image() const { return image_; }

  /// The whole surface in one colour, everything drawn before gone.
  void wipe(const QColor& color);
  /// The picture stretched to exactly this rectangle, blended by its alpha (bilinear, edges clamped; a target of the
  /// picture's own size is a plain blend of its pixels). Empty and negative sizes draw nothing.
  void drawImageRect(const QImage& picture, int x, int y, int w, int h);
  /// The picture at its own size.
  void drawImage(const QImage& picture, int x, int y);

  // The pen. Lengths are pixels, sizes points at 96 an inch.
  float CurrentX = 0;
  float CurrentY = 0;
  QColor ForeColor;
  const QString& FontName() const { return fontName_; }
  void SetFontName(const QString& face);
  float FontSize() const { return fontSize_; }
  /// A size of 0 or below isn't set; above 2,160 points counts as 2,160.
  void SetFontSize(float points);
  Pen pen() const { return {CurrentX, CurrentY, ForeColor, fontName_, fontSize_}; }
  void setPen(const Pen& pen);
  /// Size of the text in the current face and size; an empty text has the height of one line.
  double TextWidth(const QString& text) const;
  double TextHeight(const QString& text) const;
  /// Draws the text in ForeColor with the top left of its first glyph cell at the pen position.
  void Print(const QString& text);

  /// What was drawn since the last call, and so has to be shown.
  QRect takeDirty();

 private:
  void mark(const QRect& rectangle);
  const QFont& font() const;

  QImage image_;
  QString fontName_;
  float fontSize_ = 0;
  mutable std::optional<QFont> font_;  ///< of name and size, once it was asked for
  QRect dirty_;
};

}  // namespace drawing
