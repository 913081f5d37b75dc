#include "pictures/background_styles.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sample {

namespace {

constexpr double Pi = std::numbers::pi;

void paintSky(Canvas& canvas, const Palette& palette) {
  canvas.shade([&](double, double y) { return skyColor(palette, y / canvas.height()); });
}

void darkenEdges(Canvas& canvas, const Palette& palette) {
  canvas.shade([&](double x, double y) {
    const double away = std::hypot(x / canvas.width() - 0.5, y / canvas.height() - 0.5);
    return faded(palette.dark, 0.55 * smooth(0.35, 0.8, away));
  });
}

void glow(Canvas& canvas, QPointF centre, double radius, const Color& color, double strength) {
  canvas.fill(disc(centre, radius), [&](double x, double y) {
    const double away = std::hypot(x - centre.x(), y - centre.y()) / radius;
    return faded(color, strength * (1 - smooth(0, 1, away)));
  });
}

}  // namespace

Color skyColor(const Palette& palette, double part) {
  return part < 0.5 ? mix(palette.top, palette.middle, part * 2) : mix(palette.middle, palette.bottom, part * 2 - 1);
}

void paintHills(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  const QPointF sun = dice.point(QRectF(180, 250, 440, 80));
  glow(canvas, sun, 320, palette.light, 0.6);
  canvas.fill(disc(sun, 62), faded(palette.light, 0.9), 3);
  for (int layer = 0; layer < 4; ++layer) {
    const double base = 330 + layer * 66;
    const double shift = dice.next(0, 40);
    const Color color = mix(palette.middle, palette.dark, 0.35 + 0.2 * layer);
    const auto height = [=](double x) {
      return base + 46 * std::sin((x + 70 * shift) / (150 - 20 * layer)) +
             60 * (noise(x / 90, layer + shift, seed) - 0.5);
    };
    canvas.shade([&](double x, double y) { return faded(color, smooth(-0.8, 0.8, y - height(x))); });
  }
  darkenEdges(canvas, palette);
}

void paintSpots(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  canvas.fill(roundBox(QRectF(-60, 470, 920, 200), 60), faded(mix(palette.dark, palette.bottom, 0.35), 0.9), 6);
  for (int lamp = 0; lamp < 5; ++lamp) {
    const QPointF source(70 + lamp * 165, -10);
    const double lean = dice.next(-220, 220);
    const double spread = dice.next(60, 110);
    const Color color = mix(palette.light, palette.middle, dice.next(0, 0.7));
    canvas.shade([&](double x, double y) {
      const double down = (y - source.y()) / canvas.height();
      const double away = std::abs(x - source.x() - lean * down) / (8 + spread * down);
      return faded(color, 0.42 * (1 - smooth(0.3, 1, away)) * (1 - 0.75 * down));
    });
    canvas.fill(disc(source + QPointF(0, 14), 16), faded(palette.light, 0.95), 6);
    glow(canvas, QPointF(source.x() + lean * 0.9, 520), 120, color, 0.25);
  }
  darkenEdges(canvas, palette);
}

void paintLights(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  for (int i = 0; i < 46; ++i) {
    const QPointF centre = dice.point(QRectF(0, 0, 800, 600));
    const double radius = dice.next(10, 74);
    const Color color = mix(palette.light, palette.middle, dice.next());
    const double strength = dice.next(0.05, 0.22);
    canvas.fill(disc(centre, radius), faded(color, strength), 4 + radius / 8);
    canvas.fill(outline(disc(centre, radius), 3), faded(color, strength * 0.8), 3);
  }
  darkenEdges(canvas, palette);
}

void paintCurtain(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  const double phase = dice.next(0, 6);
  canvas.shade([&](double x, double y) {
    const double part = y / canvas.height();
    const double sway = x + 14 * std::sin(y / 170 + phase);
    const double fold = 0.5 + 0.5 * std::sin(sway / 17 + 1.6 * std::sin(sway / 83 + phase));
    const Color cloth = mix(palette.dark, skyColor(palette, part), 0.25 + 0.75 * fold);
    return mix(cloth, palette.light, 0.12 * std::pow(fold, 6));
  });
  for (int swag = 0; swag < 5; ++swag) {
    const QPointF centre(80 + swag * 160, -26);
    canvas.fill(disc(centre, 112), mix(palette.middle, palette.dark, 0.35), 3);
    canvas.fill(outline(disc(centre, 110), 5), faded(palette.light, 0.55), 2);
  }
  canvas.shade([&](double, double y) { return faded(palette.dark, 0.8 * smooth(430, 640, y)); });
  darkenEdges(canvas, palette);
}

void paintWaves(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  for (int wave = 0; wave < 7; ++wave) {
    const double base = 120 + wave * 68;
    const double length = dice.next(110, 240);
    const double phase = dice.next(0, 6);
    const double swell = dice.next(18, 46);
    const Color color = mix(palette.light, palette.dark, wave / 6.0);
    canvas.shade([&](double x, double y) {
      const double depth = y - base - swell * std::sin(x / length + phase);
      return faded(color, 0.22 * smooth(-1, 1, depth) + 0.3 * (1 - smooth(0, 5, std::abs(depth))));
    });
  }
  darkenEdges(canvas, palette);
}

void paintRays(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  const QPointF centre = dice.point(QRectF(250, 250, 300, 390));
  const double turn = dice.next(0, 1);
  paintSky(canvas, palette);
  canvas.shade([&](double x, double y) {
    const double angle = std::atan2(y - centre.y(), x - centre.x()) / Pi;
    const double band = std::sin((angle + turn) * 12 * Pi);
    return faded(palette.light, 0.13 * smooth(-0.25, 0.25, band));
  });
  glow(canvas, centre, 380, palette.light, 0.45);
  for (int circle = 0; circle < 3; ++circle) {
    canvas.fill(outline(disc(centre, 120 + 90 * circle), 5), faded(palette.light, 0.16), 3);
  }
  darkenEdges(canvas, palette);
}

void paintSkyline(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  glow(canvas, QPointF(400, 520), 420, palette.light, 0.4);
  for (int tower = 0; tower < 20; ++tower) {
    const double left = tower * 41 - 8;
    const int blocks = static_cast<int>(dice.next(3, 15));
    for (int block = 0; block < blocks; ++block) {
      const QRectF box(left, 576 - block * 27, 34, 21);
      const Color color = mix(palette.dark, palette.light, 0.1 + 0.035 * block);
      canvas.fill(roundBox(box, 4), faded(color, 0.75));
    }
  }
  darkenEdges(canvas, palette);
}

void paintStaff(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  const double phase = dice.next(0, 6);
  const auto middle = [=](double x) { return 300 + 90 * std::sin(x / 190 + phase) + 30 * std::sin(x / 61 + phase); };
  canvas.shade([&](double x, double y) {
    const double place = (y - middle(x)) / (26 + 8 * std::sin(x / 240));
    const double nearest = std::abs(place - std::clamp(std::round(place), -2.0, 2.0));
    return faded(palette.light, 0.45 * (1 - smooth(0.02, 0.08, nearest)));
  });
  for (int note = 0; note < 9; ++note) {
    const double x = 50 + note * 88;
    const double y = middle(x) + 13 * std::round(dice.next(-4, 4));
    canvas.fill(line(QPointF(x + 13, y - 2), QPointF(x + 13, y - 62), 2), faded(palette.light, 0.6));
    canvas.fill(line(QPointF(x - 5, y + 3), QPointF(x + 5, y - 3), 10), faded(palette.light, 0.7), 2);
  }
  darkenEdges(canvas, palette);
}

void paintTiles(Canvas& canvas, const Palette& palette, unsigned seed) {
  Dice dice(seed);
  paintSky(canvas, palette);
  for (int row = 0; row < 6; ++row) {
    for (int column = 0; column < 8; ++column) {
      const QRectF box(column * 100 + 4, row * 100 + 4, 92, 92);
      const Color color = dice.next() < 0.5 ? palette.light : palette.dark;
      canvas.fill(roundBox(box, 16), faded(color, dice.next(0.03, 0.2)), 2);
    }
  }
  darkenEdges(canvas, palette);
}

}  // namespace sample
