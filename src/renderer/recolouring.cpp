#include "renderer/recolouring.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/numbers.h"
#include "renderer/texture_pipeline.h"

namespace renderer {
namespace {

constexpr quint32 ColorBits = 0x00FFFFFF;
constexpr quint32 AlphaBits = 0xFF000000;

double hueToChannel(double m1, double m2, double h) {
  if (h > 360) {
    h -= 360;
  } else if (h < 0) {
    h += 360;
  }
  if (h < 60) return m1 + (m2 - m1) * h / 60;
  if (h < 180) return m2;
  if (h < 240) return m1 + (m2 - m1) * (240 - h) / 60;
  return m1;
}

quint32 byteOf(double channel) {
  return platform::RoundToByte(static_cast<float>(std::max(channel, 0.0) * 255.0)).value_or(255);
}

/// The recoloured pixel, without alpha, of one whose largest and smallest channel are these: lightness and saturation
/// depend on nothing else.
quint32 recoloured(double hue, int largest, int smallest) {
  const HSL shade = RGBToHSL(largest / 255.0, smallest / 255.0, smallest / 255.0);
  const RGB channels = HSLToRGB(hue, shade.L, shade.S);
  return byteOf(channels.R) << 16U | byteOf(channels.G) << 8U | byteOf(channels.B);
}

}  // namespace

HSL RGBToHSL(double r, double g, double b) {
  constexpr double GreySpread = 0.00001;
  const double max = std::max({r, g, b});
  const double min = std::min({r, g, b});
  const double delta = max - min;
  HSL result;
  result.L = (max + min) / 2;
  if (std::abs(delta) < GreySpread) return result;
  result.S = result.L <= 0.5 ? delta / (max + min) : delta / (2 - max - min);
  const double rc = (max - r) / delta;
  const double gc = (max - g) / delta;
  const double bc = (max - b) / delta;
  if (r == max) {
    result.H = bc - gc;
  } else if (g == max) {
    result.H = 2 + rc - bc;
  } else {
    result.H = 4 + gc - rc;
  }
  result.H *= 60;
  if (result.H < 0) result.H += 360;
  return result;
}

RGB HSLToRGB(double H, double L, double S) {
  if (S == 0) return {L, L, L};
  const double m2 = L <= 0.5 ? L * (1 + S) : L + S - L * S;
  const double m1 = 2 * L - m2;
  return {hueToChannel(m1, m2, H + 120), hueToChannel(m1, m2, H), hueToChannel(m1, m2, H - 120)};
}

void Colorize(QImage& picture, const ColorNumbers& color) {
  const double hue = RGBToHSL(color.R, color.G, color.B).H;
  // Each pair of largest and smallest channel is worked out once, when the first pixel asks for it.
  constexpr quint32 Unknown = AlphaBits;
  std::vector<quint32> known(256 * 256, Unknown);
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<quint32*>(picture.scanLine(y));
    for (quint32* pixel = line; pixel != line + picture.width(); ++pixel) {
      const quint32 r = *pixel >> 16U & 0xFFU;
      const quint32 g = *pixel >> 8U & 0xFFU;
      const quint32 b = *pixel & 0xFFU;
      const quint32 largest = std::max({r, g, b});
      const quint32 smallest = std::min({r, g, b});
      quint32& shade = known[largest << 8U | smallest];
      if (shade == Unknown) shade = recoloured(hue, static_cast<int>(largest), static_cast<int>(smallest));
      *pixel = (*pixel & AlphaBits) | shade;
    }
  }
}

bool RecolourFont(QImage& picture, const ColorNumbers& color, float intensity) {
  const float factor = intensity == NoIntensity ? 1.0F : intensity;
  const auto r = platform::RoundToByte(color.R * factor);
  const auto g = platform::RoundToByte(color.G * factor);
  const auto b = platform::RoundToByte(color.B * factor);
  const bool fits = r && g && b;
  const quint32 bits = fits ? static_cast<quint32>(*r << 16U | *g << 8U | *b) : 0;
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<quint32*>(picture.scanLine(y));
    auto* const end = line + picture.width();
    const auto isWhite = [](quint32 pixel) { return (pixel & ColorBits) == ColorBits; };
    if (!fits && !std::all_of(line, end, isWhite)) return false;
    // White takes the bits as well: it has them all.
    for (quint32* pixel = line; pixel != end; ++pixel) *pixel |= bits;
  }
  return true;
}

}  // namespace renderer
