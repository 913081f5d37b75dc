#pragma once

#include <QPainter>
#include <QSize>

#include "progressbar/properties.h"

namespace progressbar {

/// Draws the whole bar.
void Paint(QPainter& painter, const QSize& size, const Properties& bar);

}  // namespace progressbar
