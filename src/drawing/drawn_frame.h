#pragma once

#include <optional>
#include <vector>

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRect>
#include <QString>

namespace drawing {

/// A step of a drawing: a picture, a text, or a colour that fills all. Equal ones draw the same.
struct DrawnStep {
  QRect place;  ///< all that it touches
  QColor color;
  QPointF corner;             ///< of a picture; of a text the beginning of its baseline
  QString words;              ///< of a text
  std::optional<QFont> font;  ///< the same
  qint64 picture = 0;         ///< what tells a picture's pixels from others'
  bool operator==(const DrawnStep&) const = default;
};

/// What a frame has drawn, and onto what: the next one needs to draw only what is different.
struct DrawnFrame {
  std::vector<DrawnStep> steps;
  qint64 picture = 0;  ///< what tells the surface's pixels from others'
};

}  // namespace drawing
