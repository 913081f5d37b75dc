#pragma once

#include <QRgb>

namespace toolbar {

/// The pixel of a colour value.
QRgb TranslateColor(quint32 color);

/// Mixes two colours, channel by channel: `weight` of 255 parts are `color`, the rest is `other`.
QRgb BlendColors(quint32 color, quint32 other, int weight = 128);

}  // namespace toolbar
