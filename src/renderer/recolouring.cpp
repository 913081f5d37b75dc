#include "renderer/recolouring.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/numbers.h"

namespace renderer {
namespace {

constexpr quint32 ColorBits = 0x00FFFFFF;
constexpr quint32 AlphaBits = 0xFF000000;

/// Where a channel lies between the smallest (0) and the largest channel (1) of a colour, for an angle `h` of the hue.
/// On a ramp, `part` still has to be divided by 60.
struct Reach {
  double part = 0;
  bool ramp = false;
};

Reach reachOf(double h) {
  if (h > 360) {
    h -= 360;
  } else if (h < 0) {
    h += 360;
  }
  if (h < 60) return {h, true};
  if (h < 180) return {1, false};
  if (h < 240) return {240 - h, true};
  return {0, false};
}

double hueToChannel(double m1, double m2, double h) {
  const Reach reach = reachOf(h);
  if (reach.ramp) return m1 + (m2 - m1) * reach.part / 60;
  return reach.part == 0 ? m1 : m2;
}

quint32 byteOf(double channel) {
  return platform::roundToByte(static_cast<float>(std::max(channel, 0.0) * 255.0)).value_or(255);
}

/// A recoloured pixel without alpha. Its lightness and saturation depend only on the largest and the smallest channel.
quint32 recolored(double hue, quint32 largest, quint32 smallest) {
  const HSL shade = RGBToHSL(largest / 255.0, smallest / 255.0, smallest / 255.0);
  const RGB channels = HSLToRGB(hue, shade.L, shade.S);
  return byteOf(channels.R) << 16U | byteOf(channels.G) << 8U | byteOf(channels.B);
}

/// How much the channels of a recoloured pixel are above its smallest channel, packed like a pixel. A bit in `halves`
/// means that half of one has to be added, with rounding to the even byte.
struct Step {
  quint32 above = 0;
  quint32 halves = 0;
};

constexpr int Spreads = 256;
using Steps = std::array<Step, Spreads>;

/// The steps of a hue for each spread, which is the largest minus the smallest channel. A channel is smallest + spread
/// * reach, so a table by spread is enough. The floating-point formulas deviate from that by less than `Exact`, and
/// their 32-bit floats by less than `Grain`. None if a value is so close to a half that this could change the rounding,
/// which doesn't happen for colours in whole numbers.
std::optional<Steps> stepsOf(double hue) {
  constexpr double Exact = 1e-10;
  constexpr double Grain = 1e-5;
  Steps steps;
  for (const auto& [h, shift] : {std::pair{hue + 120, 16U}, {hue, 8U}, {hue - 120, 0U}}) {
    const Reach reach = reachOf(h);
    const double share = reach.ramp ? reach.part / 60 : reach.part;
    for (int spread = 0; spread < Spreads; ++spread) {
      const double above = spread * share;
      const double whole = std::floor(above);
      const double overHalf = above - whole - 0.5;
      const bool half = std::abs(overHalf) < Exact;
      if (!half && std::abs(overHalf) < Grain) return std::nullopt;
      const auto bytes = static_cast<quint32>(whole) + (!half && overHalf > 0 ? 1 : 0);
      steps[spread].above |= bytes << shift;
      steps[spread].halves |= (half ? 1U : 0U) << shift;
    }
  }
  return steps;
}

/// Replaces every pixel by `recolour(largest channel, smallest channel)`. Alpha stays.
template <typename Recolor>
void recolorEach(QImage& picture, Recolor recolor) {
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<quint32*>(picture.scanLine(y));
    auto* const end = line + picture.width();
    for (quint32* pixel = line; pixel != end; ++pixel) {
      const quint32 r = *pixel >> 16U & 0xFFU;
      const quint32 g = *pixel >> 8U & 0xFFU;
      const quint32 b = *pixel & 0xFFU;
      *pixel = (*pixel & AlphaBits) | recolor(std::max({r, g, b}), std::min({r, g, b}));
    }
  }
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

void colorize(QImage& picture, const ColorNumbers& color) {
  const double hue = RGBToHSL(color.R, color.G, color.B).H;
  if (const auto steps = stepsOf(hue)) {
    recolorEach(picture, [&steps = *steps](quint32 largest, quint32 smallest) {
      const Step& step = steps[largest - smallest];
      const quint32 sum = smallest * 0x010101U + step.above;
      return sum + (sum & step.halves);
    });
  } else {
    recolorEach(picture, [hue](quint32 largest, quint32 smallest) { return recolored(hue, largest, smallest); });
  }
}

bool recolorFont(QImage& picture, const ColorNumbers& color, float intensity) {
  const float factor = intensity == NoIntensity ? 1.0F : intensity;
  const auto r = platform::roundToByte(color.R * factor);
  const auto g = platform::roundToByte(color.G * factor);
  const auto b = platform::roundToByte(color.B * factor);
  const bool fits = r && g && b;
  const quint32 bits = fits ? static_cast<quint32>(*r << 16U | *g << 8U | *b) : 0;
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<quint32*>(picture.scanLine(y));
    auto* const end = line + picture.width();
    const auto isWhite = [](quint32 pixel) { return (pixel & ColorBits) == ColorBits; };
    if (!fits && !std::all_of(line, end, isWhite)) return false;
    // White doesn't change, as it has all bits already.
    for (quint32* pixel = line; pixel != end; ++pixel) *pixel |= bits;
  }
  return true;
}

}  // namespace renderer
