#include "toolbar/colours.h"

#include "drawing/system_colours.h"
#include "toolbar/checked_numbers.h"

namespace toolbar {

namespace {

int blend(int channel, int other, int weight) {
  constexpr double All = 255;
  return nearestInt((All - weight) * other / All + static_cast<double>(weight) * channel / All);
}

}  // namespace

QRgb TranslateColor(quint32 color) {
  return drawing::colorOf(color).rgb();
}

QRgb BlendColors(quint32 color, quint32 other, int weight) {
  const QRgb a = TranslateColor(color);
  const QRgb b = TranslateColor(other);
  return qRgb(blend(qRed(a), qRed(b), weight), blend(qGreen(a), qGreen(b), weight), blend(qBlue(a), qBlue(b), weight));
}

}  // namespace toolbar
