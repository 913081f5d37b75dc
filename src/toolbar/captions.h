#pragma once

#include <functional>

#include <QFont>
#include <QRect>
#include <QStringList>

#include "drawing/raster.h"

namespace toolbar {

/// The caption in lines narrower than `maxWidth`, as measured by `textWidth`; a line breaks before anything but a
/// letter or "_". Nothing of the caption is lost but blanks at the ends of lines.
QStringList WrapCaption(const QString& caption, int maxWidth, const std::function<int(const QString&)>& textWidth);

/// Draws the caption centred in the box, in lines; `shift` 1 lifts them by half a line, -1 lowers them as much.
void DrawCaption(drawing::Raster& raster, const QFont& font, QRgb color, const QString& caption, const QRect& box,
                 int shift);

}  // namespace toolbar
