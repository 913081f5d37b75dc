#pragma once

#include <optional>

#include <QPoint>
#include <QSize>
#include <QString>

#include "drawing/raster.h"
#include "progressbar/properties.h"

namespace progressbar {

/// The bar's caption by TextStyle: its value, the per cent, its text, or nothing.
QString captionText(const Properties& bar, double percent);

/// The top left corner of a caption of this size on a bar. None for an unknown alignment.
std::optional<QPoint> captionPlace(int alignment, const QSize& bar, const QSize& caption);

/// Draws the caption with its effect.
void paintCaption(drawing::Raster& raster, const Properties& bar, const QString& text);

}  // namespace progressbar
