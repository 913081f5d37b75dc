#include <cmath>

#include "drawing/canvas.h"
#include "pictures/assets.h"

namespace sample {

namespace {

void paintEvening(Canvas& canvas) {
  canvas.shade([](double, double y) {
    const double part = y / 600;
    if (part < 0.45) return mix(rgb(0x3a2a78), rgb(0xb8608c), part / 0.45);
    if (part < 0.72) return mix(rgb(0xb8608c), rgb(0xf8b888), (part - 0.45) / 0.27);
    return mix(rgb(0xf8b888), rgb(0xfff0dc), (part - 0.72) / 0.12);
  });
  const QPointF sun(540, 380);
  canvas.fill(disc(sun, 330), [&](double x, double y) {
    return rgb(0xffe8b8, 0.75 * (1 - smooth(40, 330, std::hypot(x - sun.x(), y - sun.y()))));
  });
}

void paintBeams(Canvas& canvas) {
  struct Beam {
    double from, to, spread;
  };
  constexpr Beam Beams[] = {{90, 250, 90}, {300, 190, 70}, {520, 640, 80}, {720, 480, 100}};
  for (const Beam& beam : Beams) {
    canvas.shade([&](double x, double y) {
      const double part = y / 480;
      const double away = std::abs(x - beam.from - (beam.to - beam.from) * part) / (6 + beam.spread * part);
      return rgb(0xfff4d8, 0.34 * (1 - smooth(0.4, 1, away)) * (1 - smooth(0.2, 1, part)));
    });
    canvas.fill(roundBox(QRectF(beam.from - 22, -12, 44, 34), 8), rgb(0x1c1438));
    canvas.fill(disc({beam.from, 24}, 12), rgb(0xfffbe8), 4);
  }
}

void paintBars(Canvas& canvas) {
  Dice dice(7);
  for (int column = 0; column < 34; ++column) {
    const int blocks = static_cast<int>(2 + 7 * noise(column / 3.0, 0.5, 3) + dice.next(0, 2));
    for (int block = 0; block < blocks; ++block) {
      const QRectF box(4 + column * 23.5, 482 - block * 15, 18, 10);
      canvas.fill(roundBox(box, 3), faded(mix(rgb(0x6c3c8c), rgb(0xffd890), block / 9.0), 0.5));
    }
  }
}

/// A small picture of a screen being built: a bar, buttons and a frame with grips round one of them.
void paintBoard(Canvas& canvas) {
  const QRectF board(330, 120, 380, 270);
  canvas.fill(moved(roundBox(board, 14), 0, 8), rgb(0x1c1030, 0.5), 24);
  canvas.fill(roundBox(board, 14),
              [&](double, double y) { return mix(rgb(0x342460), rgb(0x5c3474), (y - 120) / 270); });
  canvas.fill(roundBox(QRectF(330, 120, 380, 44), 14), rgb(0x22163f));
  canvas.fill(roundBox(QRectF(390, 136, 150, 12), 6), rgb(0xfff0dc));
  canvas.fill(star({358, 143}, 14), rgb(0xffd05c));
  constexpr unsigned buttons[] = {0x47aff7, 0x3fbf3f, 0xf76a6a, 0xffb030};
  for (int button = 0; button < 4; ++button) {
    const int row = button / 2;
    const QRectF box(356 + button % 2 * 172, 188 + row * 88, 156, 62);
    canvas.fill(moved(roundBox(box, 16), 0, 3), rgb(0x0c0618, 0.5), 8);
    canvas.fill(roundBox(box, 16), [&](double, double y) {
      return mix(rgb(buttons[button]), rgb(0x241444), 0.1 + 0.45 * (y - box.top()) / box.height());
    });
    canvas.fill(roundBox(QRectF(box.left() + 24, box.top() + 20, 84, 10), 5), rgb(0xffffff, 0.92));
    canvas.fill(roundBox(QRectF(box.left() + 24, box.top() + 38, 54, 7), 3), rgb(0xffffff, 0.5));
  }
  const QRectF frame(520, 180, 172, 78);
  canvas.fill(outline(roundBox(frame, 0), 2), rgb(0xff5050));
  for (const double x : {frame.left(), frame.center().x(), frame.right()}) {
    for (const double y : {frame.top(), frame.center().y(), frame.bottom()}) {
      if (x == frame.center().x() && y == frame.center().y()) continue;
      canvas.fill(roundBox(QRectF(x - 4, y - 4, 8, 8), 0), rgb(0xffffff));
      canvas.fill(outline(roundBox(QRectF(x - 4, y - 4, 8, 8), 0), 1.4), rgb(0xc02020));
    }
  }
}

void paintSwatches(Canvas& canvas) {
  constexpr unsigned Colors[] = {0x47aff7, 0xf74747, 0x3fbf3f, 0xe63fe6, 0xff9000, 0xe6e65f};
  int place = 0;
  for (const unsigned color : Colors) {
    const QPointF centre(352 + 66 * place++, 424);
    canvas.fill(moved(disc(centre, 21), 0, 3), rgb(0x1c1030, 0.45), 8);
    canvas.fill(disc(centre, 21), rgb(0xfff8ec));
    canvas.fill(disc(centre, 17), rgb(color));
    canvas.fill(disc(centre - QPointF(5, 6), 5), rgb(0xffffff, 0.55), 3);
  }
}

void paintMicrophone(Canvas& canvas) {
  canvas.fill(roundBox(QRectF(70, 552, 210, 22), 11), rgb(0x2a1640, 0.28), 14);
  canvas.fill(line({176, 330}, {176, 556}, 6), rgb(0x2c2044));
  canvas.fill(line({178, 330}, {178, 556}, 1.6), rgb(0x8c7cac));
  canvas.fill(roundBox(QRectF(106, 548, 140, 14), 7), rgb(0x2c2044));
  canvas.fill(area({{176, 330}, {232, 236}, {196, 214}, {160, 318}}, 5),
              [](double x, double y) { return mix(rgb(0x6a5c8c), rgb(0x1e1434), (x - 150) / 90 + (y - 210) / 400); });
  canvas.fill(disc({236, 188}, 56), [](double x, double y) {
    const Color ball = mix(rgb(0xfffaf2), rgb(0x5c5074), std::hypot(x - 216, y - 166) / 92);
    const double mesh = std::min(std::abs(std::fmod(x + y, 9) - 4.5), std::abs(std::fmod(x - y + 900, 9) - 4.5));
    return mix(ball, rgb(0x2c2044), 0.55 * (1 - smooth(0.4, 1.8, mesh)));
  });
  canvas.fill(line({194, 208}, {240, 240}, 8), rgb(0xffc04c));
}

void paintNotes(Canvas& canvas) {
  struct Note {
    double x, y, size;
    unsigned color;
  };
  constexpr Note Notes[] = {{66, 250, 1.2, 0xfff0c8},  {112, 120, 0.9, 0xffd0e0}, {746, 150, 1.1, 0xffe8b0},
                            {752, 320, 0.8, 0xffffff}, {300, 70, 0.8, 0xffe0f0},  {40, 400, 0.8, 0xffffff}};
  for (const Note& note : Notes) {
    const auto at = [&](double dx, double dy) { return QPointF(note.x + dx * note.size, note.y + dy * note.size); };
    const Color color = rgb(note.color, 0.9);
    canvas.fill(line(at(-4, 2), at(4, -2), 7 * note.size), color);
    canvas.fill(line(at(9, -3), at(9, -40), 2 * note.size), color);
    canvas.fill(area({at(8, -42), at(20, -34), at(22, -20), at(16, -28), at(8, -31)}, 1), color);
  }
}

}  // namespace

QImage startPicture() {
  Canvas canvas(800, 600);
  paintEvening(canvas);
  paintBeams(canvas);
  paintBars(canvas);
  paintBoard(canvas);
  paintSwatches(canvas);
  paintMicrophone(canvas);
  paintNotes(canvas);
  return canvas.image();
}

}  // namespace sample
