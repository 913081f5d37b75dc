#pragma once

#include <QRgb>

namespace toolbar {

/// The pixel of a colour value.
QRgb TranslateColor(quint32 color);

/// The two colours mixed, each channel by itself: `weight` of 255 parts of `color`, the rest of `other`.
QRgb BlendColors(quint32 color, quint32 other, int weight = 128);

}  // namespace toolbar
