#pragma once

#include <functional>

#include <QFont>
#include <QRect>
#include <QStringList>

#include "drawing/raster.h"

namespace toolbar {

/// Breaks the caption into lines that `textWidth` measures as narrower than `maxWidth`; a last line may be as wide. A
/// line may break before any character except a letter or "_". Only blanks and line ends at the breaks are lost.
QStringList WrapCaption(const QString& caption, int maxWidth, const std::function<int(const QString&)>& textWidth);

/// Draws the caption in lines, centred in the box. With a `shift` of 1 it is half a line higher, with -1 half a line
/// lower.
void DrawCaption(drawing::Raster& raster, const QFont& font, QRgb color, const QString& caption, const QRect& box,
                 int shift);

}  // namespace toolbar
