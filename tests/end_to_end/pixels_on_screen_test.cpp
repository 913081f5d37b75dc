#include <QScreen>

#include "support/real_input.h"

using namespace support;

namespace {

/// The pictures of the theme, by what they are made of.
QRgb patch(int x, int y) {
  if (x == 0) return qRgba(255, 255, 255, y < 6 ? 255 : 90);
  if (x == 1) return qRgba(0, 0, 0, 255);
  if (x == 2) return qRgba(128, 128, 128, 200);
  return qRgba(x * 16, y * 20, (x + y) * 9, 255 - 20 * (x % 3));
}
QRgb faint(int x, int y) {
  return qRgba(3 * x, 200 - 10 * y, 100 + y, (x + y) % 4);
}
QRgb blocks(int x, int y) {
  const QRgb colors[2][2] = {{qRgb(255, 0, 0), qRgb(0, 255, 0)}, {qRgb(0, 0, 255), qRgb(240, 240, 0)}};
  return colors[y][x];
}

using Pixel = std::array<double, 4>;  ///< red, green, blue, alpha

Pixel pixelOf(QRgb color) {
  return {double(qRed(color)), double(qGreen(color)), double(qBlue(color)), double(qAlpha(color))};
}

// What a type makes of a pixel under the colour given with the cases below.

Pixel plain(const Pixel& p) {
  return p;
}
/// Hue 0: the largest channel is red, the other two are the smallest.
Pixel red(const Pixel& p) {
  const double least = std::min({p[0], p[1], p[2]});
  return {std::max({p[0], p[1], p[2]}), least, least, p[3]};
}
/// 200 100 50 by OR.
Pixel font(const Pixel& p) {
  if (p[0] + p[1] + p[2] == 3 * 255) return p;
  return {double(int(p[0]) | 200), double(int(p[1]) | 100), double(int(p[2]) | 50), p[3]};
}

constexpr QSize Scaled(40, 20);

/// The pixel of the blocks that are stretched to that size: between the four, by the distance from their middles, and
/// no further out than these.
QRgb stretched(int x, int y) {
  const double u = std::clamp((x + 0.5) * 2 / Scaled.width() - 0.5, 0.0, 1.0);
  const double v = std::clamp((y + 0.5) * 2 / Scaled.height() - 0.5, 0.0, 1.0);
  std::array<int, 3> result{};
  for (size_t i = 0; i < 3; ++i) {
    const double upper = pixelOf(blocks(0, 0))[i] * (1 - u) + pixelOf(blocks(1, 0))[i] * u;
    const double lower = pixelOf(blocks(0, 1))[i] * (1 - u) + pixelOf(blocks(1, 1))[i] * u;
    result[i] = qRound(upper * (1 - v) + lower * v);
  }
  return qRgb(result[0], result[1], result[2]);
}

/// A static of the theme: how it is written, and where each of its pixels has to show.
struct Case {
  const char* keys;  ///< at a "|" a line ends
  QRgb (*source)(int, int);
  Pixel (*type)(const Pixel&);
  QRect place;
  double tolerance = 1;
};

const Case Cases[] = {
    {"Tex=Patch|X=100|Y=100|W=16|H=12|Color=Any|Type=Plain", patch, plain, {100, 100, 16, 12}},
    {"Tex=Patch|X=150|Y=100|W=16|H=12|Color=Any|Type=Transparent", patch, plain, {150, 100, 16, 12}},
    {"Tex=Patch|X=200|Y=100|W=16|H=12|Color=Any", patch, plain, {200, 100, 16, 12}},
    {"Tex=Patch|X=250|Y=100|W=16|H=12|Color=Red|Type=Colorized", patch, red, {250, 100, 16, 12}},
    {"Tex=Patch|X=350|Y=100|W=16|H=12|Color=Font|Type=Font Black", patch, font, {350, 100, 16, 12}},
    {"Tex=Faint|X=100|Y=150|W=16|H=12|Color=Any|Type=Plain", faint, plain, {100, 150, 16, 12}},
    {"Tex=Faint|X=150|Y=150|W=16|H=12|Color=Red|Type=Colorized", faint, red, {150, 150, 16, 12}},
    {"Tex=Faint|X=200|Y=150|W=16|H=12|Color=Font|Type=Font Black", faint, font, {200, 150, 16, 12}},
    {"Tex=Blocks|X=100|Y=300|W=40|H=20|Color=Any", stretched, plain, {QPoint(100, 300), Scaled}, 3.5},
};

/// Blended over `below`, each channel as a fraction of 255.
Pixel over(const Pixel& p, const Pixel& below) {
  Pixel result{0, 0, 0, 255};
  for (size_t i = 0; i < 3; ++i) result[i] = (p[i] * p[3] + below[i] * (255 - p[3])) / 255;
  return result;
}

}  // namespace

class PixelsOnScreenTest : public QObject {
  Q_OBJECT

 private:
  const GameFolder game;

  void save(const char* name, const QImage& picture) const {
    QVERIFY(picture.save(game.native(u"Skins/Alpha/"_s + QLatin1StringView(name))));
  }

 private Q_SLOTS:
  void initTestCase() {
    QByteArray theme = "[Colors]|Any=1 2 3|Red=255 0 0|Font=200 100 50|[Loading]|";
    int number = 10;
    for (const Case& row : Cases) theme += "[LoadingStatic" + QByteArray::number(number++) + "]|" + row.keys + "|";
    game.put(ThemeFile, linesOf(theme));
    game.put(SkinFile, linesOf("[Textures]|Patch=patch.png|Faint=faint.png|Blocks=blocks.bmp|"));
    save("patch.png", pictureOf(16, 12, patch));
    save("faint.png", pictureOf(16, 12, faint));
    save("blocks.bmp", pictureOf(2, 2, blocks));
  }

  void statics() {
    Program program(game);
    program.state.BackgroundColor = 0x8C5A28;
    QCursor::setPos(0, 0);  // no tool tip over the preview
    openOnScreen(program);

    const QImage surface = program.picture().convertToFormat(QImage::Format_RGB32);
    // At a whole scale each pixel of the surface is a square of the screen's; at others no screen can show it so.
    const double scale = program.form.devicePixelRatioF();
    const auto screen = [&] {
      const QPoint preview = program.form.Workspace->mapTo(&program.form, QPoint(0, 0));
      const WId window = program.form.winId();
      QImage grabbed = program.form.screen()->grabWindow(window, preview.x(), preview.y(), 800, 600).toImage();
      grabbed.setDevicePixelRatio(1);
      return grabbed.convertToFormat(QImage::Format_RGB32);
    };
    if (scale == std::floor(scale)) QTRY_COMPARE(screen(), surface.scaled(surface.size() * scale));

    struct Expected {
      Pixel pixel;
      double tolerance;
    };
    std::vector<Expected> expected(800 * 600, {{40, 90, 140, 255}, 0});
    for (const Case& row : Cases) {
      for (int y = 0; y < row.place.height(); ++y) {
        for (int x = 0; x < row.place.width(); ++x) {
          Expected& at = expected[(row.place.y() + y) * 800 + row.place.x() + x];
          at = {over(row.type(pixelOf(row.source(x, y))), at.pixel), row.tolerance};
        }
      }
    }
    for (int i = 0; i < 800 * 600; ++i) {
      const Pixel actual = pixelOf(surface.pixel(i % 800, i / 800));
      for (size_t channel = 0; channel < 3; ++channel) {
        const double difference = std::abs(actual[channel] - expected[i].pixel[channel]);
        if (difference > expected[i].tolerance) {
          QFAIL(qPrintable(u"channel %1 of %2, %3: %4"_s.arg(channel).arg(i % 800).arg(i / 800).arg(actual[channel])));
        }
      }
    }
  }
};

QTEST_MAIN(PixelsOnScreenTest)
#include "pixels_on_screen_test.moc"
