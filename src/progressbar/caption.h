#pragma once

#include <optional>

#include <QPoint>
#include <QSize>
#include <QString>

#include "drawing/raster.h"
#include "progressbar/properties.h"

namespace progressbar {

/// What the bar says: its value, its percent, its text, or nothing.
QString captionText(const Properties& bar, double percent);

/// Where the top left of a caption of this size stands on a bar; none for an alignment that doesn't exist.
std::optional<QPoint> captionPlace(int alignment, const QSize& bar, const QSize& caption);

/// Prints the caption with its effect.
void paintCaption(drawing::Raster& raster, const Properties& bar, const QString& text);

}  // namespace progressbar
