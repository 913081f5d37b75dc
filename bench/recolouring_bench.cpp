#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>

#include "figures.h"
#include "renderer/recolouring.h"

namespace bench {
namespace {

constexpr int Side = 512;
constexpr renderer::ColorNumbers Color{71, 175, 247};

/// Soft shapes, light from one side, and the grain of a film.
QImage photograph() {
  std::mt19937 random(7);  // the same picture at every run
  std::normal_distribution<double> grain(0, 6);
  QImage picture(Side, Side, QImage::Format_ARGB32);
  for (int y = 0; y < Side; ++y) {
    for (int x = 0; x < Side; ++x) {
      const double light = 90 + 70 * std::sin(x / 61.0) * std::cos(y / 83.0) + x / 8.0;
      const auto channel = [&](double tint) {
        return std::clamp(static_cast<int>(light * tint + 30 * std::sin((x + y * tint) / 37.0) + grain(random)), 0,
                          255);
      };
      picture.setPixel(x, y, qRgba(channel(1.1), channel(0.9), channel(0.7), y < Side / 8 ? y * 4 : 255));
    }
  }
  return picture;
}

/// The arithmetic of COLORIZED done anew for each pixel.
void colorizePlainly(QImage& picture) {
  const double hue = renderer::RGBToHSL(Color.R, Color.G, Color.B).H;
  const auto byteOf = [](double channel) {
    return static_cast<quint32>(std::nearbyint(static_cast<float>(std::max(channel, 0.0) * 255.0)));
  };
  for (int y = 0; y < picture.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    auto* const end = line + picture.width();
    for (QRgb* pixel = line; pixel != end; ++pixel) {
      const auto shade = renderer::RGBToHSL(qRed(*pixel) / 255.0, qGreen(*pixel) / 255.0, qBlue(*pixel) / 255.0);
      const auto channels = renderer::HSLToRGB(hue, shade.L, shade.S);
      *pixel = (*pixel & 0xFF000000U) | byteOf(channels.R) << 16U | byteOf(channels.G) << 8U | byteOf(channels.B);
    }
  }
}

void colorize(QImage& picture) {
  renderer::colorize(picture, Color);
}

/// Recolours a fresh copy of the photograph each time.
Body recoloring(void (*recolor)(QImage&)) {
  return [recolor, original = photograph()](benchmark::State& state) {
    QImage expected = original.copy();
    colorizePlainly(expected);
    QImage picture(Side, Side, original.format());
    for ([[maybe_unused]] auto turn : state) {
      state.PauseTiming();
      std::memcpy(picture.bits(), original.constBits(), static_cast<std::size_t>(original.sizeInBytes()));
      state.ResumeTiming();
      recolor(picture);
    }
    if (picture != expected) state.SkipWithError("the bytes differ");
  };
}

}  // namespace

void registerRecoloring() {
  registerBenchmark({"COLORIZED", 12, Held::FasterAtLeast}, recoloring(colorize), recoloring(colorizePlainly));
  registerBenchmark(
      {"FONT BLACK", 4, Held::AtMost},
      [picture = photograph()](benchmark::State& state) mutable {
        for ([[maybe_unused]] auto turn : state) {
          benchmark::DoNotOptimize(renderer::recolorFont(picture, Color, renderer::NoIntensity));
        }
      },
      [picture = photograph()](benchmark::State& state) {
        QImage copy(Side, Side, picture.format());
        for ([[maybe_unused]] auto turn : state) {
          std::memcpy(copy.bits(), picture.constBits(), static_cast<std::size_t>(picture.sizeInBytes()));
          benchmark::ClobberMemory();
        }
      });
}

}  // namespace bench
