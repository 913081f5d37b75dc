#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QRegion>
#include <QString>

#include "drawing/drawn_frame.h"

namespace drawing {

/// Position, colour and font of the next text.
struct Pen {
  float x = 0;
  float y = 0;
  QColor color;
  QString face;
  float points = 0;
};

/// The preview's image of 800 x 600 pixels, with a pen for text. What is drawn is added to the dirty area.
class Surface {
 public:
  static constexpr int Width = 800;
  static constexpr int Height = 600;

  Surface();
  Q_DISABLE_COPY_MOVE(Surface)

  const QImage& image() const { return image_; }

  /// Shows a picture that image() gave before.
  void putBack(const QImage& picture);
  /// Fills the whole surface.
  void wipe(const QColor& color);
  /// Draws the picture scaled to the rectangle (bilinear) and blended by its alpha. A picture of that size is not
  /// resampled. Empty and negative sizes draw nothing.
  void drawImageRect(const QImage& picture, int x, int y, int w, int h);
  /// Draws the picture at its own size.
  void drawImage(const QImage& picture, int x, int y);

  // The pen. Places and lengths are in pixels, font sizes in points at 96 pixels per inch.
  float CurrentX = 0;
  float CurrentY = 0;
  QColor ForeColor;
  const QString& FontName() const { return fontName_; }
  void SetFontName(const QString& face);
  float FontSize() const { return fontSize_; }
  /// Ignores a size of 0 or below. The largest size is LargestPoints.
  void SetFontSize(float points);
  Pen pen() const { return {CurrentX, CurrentY, ForeColor, fontName_, fontSize_}; }
  void setPen(const Pen& pen);
  /// The text's measures in the pen's font. The height is always that of one line.
  double TextWidth(const QString& text) const;
  double TextHeight(const QString& text) const;
  /// Draws the text in ForeColor with its top left corner at the pen's place.
  void Print(const QString& text);

  /// Draws by `draw`, which draws a whole picture: only what is different from the frame before, which `last` has. All
  /// of it if something else was drawn since.
  void drawFrame(DrawnFrame& last, const std::function<void()>& draw);

  /// Returns the area drawn on since the last call.
  QRect takeDirty();

 private:
  /// What laying a text out tells: its width, and its ink round the beginning of its baseline.
  struct Layout {
    double width = 0;
    QRectF ink;
  };
  /// A font with its measures, and the texts that were laid out in it.
  struct Face {
    QFont font;
    double ascent = 0;
    double height = 0;  ///< of a line
    QHash<QString, Layout> texts;
  };

  /// The steps of a frame, which are drawn when all are known.
  struct Noted {
    std::vector<DrawnStep> steps;
    std::vector<QImage> pictures;  ///< one for each step
    qsizetype bytes = 0;           ///< of these
  };

  void add(DrawnStep step, const QImage& picture = {});
  QRegion changedSince(const DrawnFrame& last) const;
  void drawNoted(const QRegion& where);
  /// What was noted of a frame is drawn now, and the rest of the frame as it comes.
  void endNoting();
  void mark(const QRect& rectangle);
  /// The font of the pen's name and size.
  Face& face() const;
  /// Short texts are remembered: a frame of a drag prints the same ones as the frame before.
  Layout layoutOf(const QString& text) const;

  QImage image_;
  QString fontName_;
  float fontSize_ = 0;
  mutable std::map<std::pair<QString, float>, Face> faces_;
  mutable Face* face_ = nullptr;  ///< that of name and size, once it was needed
  QRect dirty_;
  std::optional<Noted> noted_;  ///< during a frame
};

}  // namespace drawing
