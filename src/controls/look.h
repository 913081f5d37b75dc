#pragma once

#include <QApplication>

namespace controls {

/// One look on every desktop: the Fusion style, a fixed light palette from the classic system colours, "MS Sans Serif"
/// 8.25 points (11 pixels) for controls.
void applyLook(QApplication& application);

/// `text` for a tool tip: shown as it stands, never taken for rich text; a long one in several lines.
QString plainToolTip(const QString& text);

}  // namespace controls
