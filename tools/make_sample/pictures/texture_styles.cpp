#include "pictures/texture_styles.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

constexpr Color White = rgb(0xffffff);
constexpr Color Black = rgb(0x000000);

QRectF inner(const Canvas& canvas, double margin) {
  return QRectF(0, 0, canvas.width(), canvas.height()).adjusted(margin, margin, -margin, -margin);
}

void dropShadow(Canvas& canvas, const Shape& shape) {
  canvas.fill(moved(shape, 0, 2), faded(Black, 0.5), 7);
}

}  // namespace

void paintTitleBar(Canvas& canvas, const Look& look) {
  const double edge = canvas.height() - 8;
  canvas.shade([&](double, double y) {
    Color color = mix(look.buttonTop, look.buttonBottom, y / edge);
    color = mix(color, Black, 0.35);
    return faded(color, y < edge ? 0.92 : 0.5 * (1 - smooth(edge, canvas.height(), y)));
  });
  canvas.shade([&](double, double y) { return faded(look.buttonEdge, std::abs(y - edge) < 1.2 ? 0.9 : 0); });
}

void paintFootBar(Canvas& canvas, const Look& look) {
  canvas.shade([&](double, double y) { return faded(mix(look.panel, Black, 0.3), 0.85 * smooth(0, 8, y)); });
}

void paintPanel(Canvas& canvas, const Look& look) {
  const Shape body = roundBox(inner(canvas, 4), 16);
  dropShadow(canvas, roundBox(inner(canvas, 5), 16));
  canvas.cut(body);
  canvas.fill(body,
              [&](double, double y) { return mix(mix(look.panel, White, 0.1), look.panel, y / canvas.height()); });
  canvas.fill(outline(roundBox(inner(canvas, 5), 15), 1.6), look.panelEdge);
}

void paintButton(Canvas& canvas, const Look& look) {
  const double radius = (canvas.height() / 2 - 4) * look.roundness;
  const Shape body = roundBox(inner(canvas, 4), radius);
  dropShadow(canvas, body);
  canvas.fill(body, [&](double, double y) { return mix(look.buttonTop, look.buttonBottom, y / canvas.height()); });
  canvas.fill(outline(roundBox(inner(canvas, 5), radius - 1), 1.6), look.buttonEdge);
  const QRectF shine = inner(canvas, 8).adjusted(0, 0, 0, 16 - canvas.height() * 0.55);
  canvas.fill(roundBox(shine, std::min(radius, shine.height() / 2)), faded(White, 0.1), 2);
}

void paintSelect(Canvas& canvas, const Look& look) {
  const double middle = canvas.height() / 2;
  const Shape frame = roundBox(inner(canvas, 3), (middle - 3) * look.roundness);
  canvas.fill(frame, faded(look.buttonBottom, 0.14));
  canvas.fill(outline(roundBox(inner(canvas, 4), (middle - 4) * look.roundness), 2.4), faded(look.buttonEdge, 0.9));
  for (const double side : {-1.0, 1.0}) {
    const double x = canvas.width() / 2 + side * (canvas.width() / 2 - 24);
    canvas.fill(area({{x + side * 7, middle}, {x - side * 5, middle - 8}, {x - side * 5, middle + 8}}, 1.5),
                look.buttonEdge);
  }
}

void paintField(Canvas& canvas, const Look& look) {
  canvas.fill(roundBox(inner(canvas, 2), 8), faded(rgb(0xf6f2ff), 0.93));
  canvas.fill(outline(roundBox(inner(canvas, 3), 7), 2.4), look.buttonBottom);
}

void paintRow(Canvas& canvas, const Look& look) {
  canvas.fill(roundBox(inner(canvas, 1), 8), faded(mix(look.panel, White, 0.08), 0.62));
  canvas.fill(outline(roundBox(inner(canvas, 1.5), 8), 1), faded(look.panelEdge, 0.22));
}

void paintBrightRow(Canvas& canvas, const Look& look) {
  canvas.fill(roundBox(inner(canvas, 1), 8), [&](double x, double) {
    return faded(mix(look.buttonTop, look.buttonBottom, x / canvas.width()), 0.92);
  });
  canvas.fill(outline(roundBox(inner(canvas, 1.5), 8), 1.6), look.buttonEdge);
}

void paintLane(Canvas& canvas, const Look& look) {
  canvas.fill(roundBox(inner(canvas, 1), 10), faded(look.panel, 0.55));
  for (int string = 1; string <= 5; ++string) {
    const double y = canvas.height() * string / 6;
    canvas.fill(line({10, y}, {canvas.width() - 10, y}, 0.7), faded(White, 0.35));
  }
}

void paintPill(Canvas& canvas, const Look& look) {
  const Shape body = roundBox(inner(canvas, 3), canvas.height() / 2 - 3);
  canvas.fill(moved(body, 0, 1), faded(Black, 0.4), 4);
  canvas.fill(body, [&](double, double y) {
    return mix(mix(look.buttonTop, White, 0.25), look.buttonTop, y / canvas.height());
  });
}

void paintTrack(Canvas& canvas, const Look& look) {
  canvas.fill(roundBox(inner(canvas, 1), canvas.height() / 2 - 1), faded(mix(look.panel, Black, 0.5), 0.8));
  canvas.fill(outline(roundBox(inner(canvas, 1.5), canvas.height() / 2 - 1.5), 1.2), faded(look.panelEdge, 0.5));
}

void paintLevel(Canvas& canvas, const Look& look) {
  canvas.shade([&](double x, double y) {
    const Color color = mix(mix(look.buttonTop, White, 0.2), look.buttonBottom, y / canvas.height());
    return std::fmod(x + y, 24) < 12 ? color : mix(color, White, 0.08);
  });
}

void paintCap(Canvas& canvas, const Look& look) {
  canvas.fill(disc({0, canvas.height() / 2}, canvas.height() / 2), [&](double, double y) {
    return mix(mix(look.buttonTop, White, 0.2), look.buttonBottom, y / canvas.height());
  });
}

void paintRecord(Canvas& canvas, const Look& look) {
  const QPointF centre(canvas.width() / 2, canvas.height() / 2);
  const double radius = canvas.width() / 2 - 3;
  canvas.fill(disc(centre, radius), [&](double x, double y) {
    const double away = std::hypot(x - centre.x(), y - centre.y());
    const double angle = std::atan2(y - centre.y(), x - centre.x());
    const double gleam = std::pow(std::abs(std::cos(angle - 0.7)), 12) * 0.28;
    return mix(rgb(0x17131f), White, gleam + (std::fmod(away, 5) < 2 ? 0.06 : 0));
  });
  canvas.fill(disc(centre, radius * 0.36), look.buttonTop);
  canvas.fill(outline(disc(centre, radius * 0.3), 2), faded(White, 0.4));
  canvas.cut(disc(centre, radius * 0.07));
}

void paintCorner(Canvas& canvas, const Look& look) {
  for (int ring = 0; ring < 4; ++ring) {
    const double radius = canvas.width() * (0.95 - 0.22 * ring);
    canvas.fill(outline(disc({0, 0}, radius), 7), faded(ring % 2 == 0 ? look.buttonTop : look.buttonEdge, 0.75), 2);
  }
}

void paintCover(Canvas& canvas, const Look& look) {
  canvas.shade([&](double x, double y) {
    const double wave = cloud(x / 40, y / 40, 77);
    return mix(mix(look.photoDark, look.photoLight, y / canvas.height()), White, 0.25 * wave);
  });
  const QPointF centre(canvas.width() * 0.5, canvas.height() * 0.44);
  canvas.fill(disc(centre, canvas.width() * 0.26), faded(rgb(0xfff0c8), 0.95), 2);
  for (int slat = 0; slat < 4; ++slat) {
    const double y = centre.y() + 6 + slat * 9;
    canvas.fill(roundBox(QRectF(20, y, canvas.width() - 40, 2 + slat), 1), mix(look.photoDark, look.photoLight, 0.4));
  }
  canvas.fill(roundBox(QRectF(0, canvas.height() * 0.8, canvas.width(), canvas.height() * 0.2), 0), look.photoDark);
}

void paintPhoto(Canvas& canvas, const Look& look) {
  Dice grain(91);
  canvas.shade([&](double x, double y) {
    const double bend = cloud(x / 170, y / 170, 5) - 0.5;
    const double haze = cloud(x / 120 + bend, y / 90 - bend, 11);
    const double down = y / canvas.height();
    const Color color = mix(look.photoDark, look.photoLight, haze * 1.2 - 0.25 + 0.35 * (1 - down));
    const double warmth = (cloud(x / 60, y / 60, 23) - 0.5) * 0.4;
    const auto speck = [&] { return grain.next(-0.035, 0.035); };
    return Color{color.r + warmth + speck(), color.g + speck(), color.b - warmth + speck(), 1};
  });
  for (int lamp = 0; lamp < 16; ++lamp) {
    const QPointF centre = grain.point(QRectF(0, 0, 512, 300));
    const double radius = grain.next(14, 52);
    canvas.fill(disc(centre, radius), faded(mix(look.photoLight, White, grain.next()), 0.3), 12);
  }
  for (int head = 0; head < 26; ++head) {
    const double x = grain.next(0, 512);
    const double y = 440 + grain.next(-40, 40);
    const Color shade = faded(mix(look.photoDark, Black, 0.55), 0.85);
    canvas.fill(disc({x, y}, 24), shade, 5);
    canvas.fill(roundBox(QRectF(x - 36, y + 20, 72, 150), 30), shade, 5);
    if (head % 3 == 0) canvas.fill(line({x + 26, y + 40}, {x + 34, y - 50}, 8), shade, 4);
  }
}

}  // namespace sample
