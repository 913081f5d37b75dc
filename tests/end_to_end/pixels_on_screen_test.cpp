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
QRgb flat(int, int) {
  return qRgb(200, 90, 10);
}

QImage pictureOf(QRgb (*pixel)(int, int), int width, int height) {
  QImage picture(width, height, QImage::Format_ARGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) picture.setPixel(x, y, pixel(x, y));
  }
  return picture;
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
/// Hue 240, by a blue that isn't pure.
Pixel blue(const Pixel& p) {
  const double least = std::min({p[0], p[1], p[2]});
  return {least, least, std::max({p[0], p[1], p[2]}), p[3]};
}
/// 200 100 50 by OR.
Pixel font(const Pixel& p) {
  if (p[0] + p[1] + p[2] == 3 * 255) return p;
  return {double(int(p[0]) | 200), double(int(p[1]) | 100), double(int(p[2]) | 50), p[3]};
}

/// A static of the theme: how it is written, and where each of its pixels has to show.
struct Case {
  const char* keys;  ///< at a "|" a line ends
  QRgb (*source)(int, int);
  Pixel (*type)(const Pixel&);
  QRect place;
};

const Case Cases[] = {
    {"Tex=Patch|X=100|Y=100|W=16|H=12|Color=Any|Type=Plain", patch, plain, {100, 100, 16, 12}},
    {"Tex=Patch|X=200|Y=100|W=16|H=12|Color=Any", patch, plain, {200, 100, 16, 12}},
    {"Tex=Patch|X=250|Y=100|W=16|H=12|Color=Red|Type=Colorized", patch, red, {250, 100, 16, 12}},
    {"Tex=Patch|X=300|Y=100|W=16|H=12|Color=Blue|Type=COLORIZED", patch, blue, {300, 100, 16, 12}},
    {"Tex=Patch|X=350|Y=100|W=16|H=12|Color=Font|Type=Font Black", patch, font, {350, 100, 16, 12}},
    {"Tex=Patch|X=-1|Y=200|W=90|H=50|Color=Any", patch, plain, {0, 0, 16, 12}},
    {"Tex=Flat|X=200|Y=-1|W=90|H=50|Color=Any", flat, plain, {0, 0, 2, 2}},
    {"Tex=Patch|X=100|Y=250|W=-1|H=50|Color=Any", patch, plain, {100, 250, 16, 12}},
    {"Tex=Patch|X=200|Y=250|W=90|H=-1|Color=Red|Type=Colorized", patch, red, {200, 250, 16, 12}},
    {"Tex=Flat|X=100|Y=300|W=40|H=20|Color=Any", flat, plain, {100, 300, 40, 20}},
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
    QByteArray theme = "[Colors]|Any=1 2 3|Red=255 0 0|Blue=20 20 90|Font=200 100 50|[Loading]|";
    int number = 10;
    for (const Case& row : Cases) theme += "[LoadingStatic" + QByteArray::number(number++) + "]|" + row.keys + "|";
    game.put(ThemeFile, linesOf(theme));
    game.put(SkinFile, linesOf("[Textures]|Patch=patch.png|Flat=flat.bmp|"));
    save("patch.png", pictureOf(patch, 16, 12));
    save("flat.bmp", pictureOf(flat, 2, 2));
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

    std::vector<Pixel> expected(800 * 600, {40, 90, 140, 255});
    for (const Case& row : Cases) {
      for (int i = 0; i < row.place.width() * row.place.height(); ++i) {
        const QPoint inside(i % row.place.width(), i / row.place.width());
        const QPoint on = row.place.topLeft() + inside;
        Pixel& at = expected[on.y() * 800 + on.x()];
        at = over(row.type(pixelOf(row.source(inside.x(), inside.y()))), at);
      }
    }
    for (int i = 0; i < 800 * 600; ++i) {
      const Pixel actual = pixelOf(surface.pixel(i % 800, i / 800));
      for (size_t channel = 0; channel < 3; ++channel) {
        if (std::abs(actual[channel] - expected[i][channel]) <= 1) continue;
        QFAIL(qPrintable(u"channel %1 of %2, %3: %4"_s.arg(channel).arg(i % 800).arg(i / 800).arg(actual[channel])));
      }
    }
  }
};

QTEST_MAIN(PixelsOnScreenTest)
#include "pixels_on_screen_test.moc"
