#include <QScreen>
#include <QTest>

#include "support/windows.h"

using namespace Qt::StringLiterals;
using support::Program;

namespace {

/// The pictures of the theme, by what they are made of.
QRgb patch(int x, int y) {
  if (x == 0) return qRgba(255, 255, 255, y < 6 ? 255 : 90);
  if (x == 1) return qRgba(0, 0, 0, 255);
  if (x == 2) return qRgba(128, 128, 128, 200);
  return qRgba(x * 16, y * 20, (x + y) * 9, 255 - 20 * (x % 3));
}
QRgb faint(int x, int y) {
  return qRgba(3 * x, 200 - 10 * y, 100 + y, 1 + (x + y) % 3);
}
QRgb blocks(int x, int y) {
  const QRgb colors[2][2] = {{qRgb(255, 0, 0), qRgb(0, 255, 0)}, {qRgb(0, 0, 255), qRgb(240, 240, 0)}};
  return colors[y][x];
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
  const char* keys;
  QRgb (*source)(int, int);
  Pixel (*type)(const Pixel&);
  QRect place;  ///< at the picture's own size
};

const Case Cases[] = {
    {"Tex=Patch\nX=100\nY=100\nW=16\nH=12\nColor=Any\nType=Plain", patch, plain, {100, 100, 16, 12}},
    {"Tex=Patch\nX=150\nY=100\nW=16\nH=12\nColor=Any\nType=Transparent", patch, plain, {150, 100, 16, 12}},
    {"Tex=Patch\nX=200\nY=100\nW=16\nH=12\nColor=Any", patch, plain, {200, 100, 16, 12}},
    {"Tex=Patch\nX=250\nY=100\nW=16\nH=12\nColor=Red\nType=Colorized", patch, red, {250, 100, 16, 12}},
    {"Tex=Patch\nX=300\nY=100\nW=16\nH=12\nColor=Blue\nType=COLORIZED", patch, blue, {300, 100, 16, 12}},
    {"Tex=Patch\nX=350\nY=100\nW=16\nH=12\nColor=Font\nType=Font Black", patch, font, {350, 100, 16, 12}},
    {"Tex=Faint\nX=100\nY=150\nW=16\nH=12\nColor=Any\nType=Plain", faint, plain, {100, 150, 16, 12}},
    {"Tex=Faint\nX=150\nY=150\nW=16\nH=12\nColor=Red\nType=Colorized", faint, red, {150, 150, 16, 12}},
    {"Tex=Faint\nX=200\nY=150\nW=16\nH=12\nColor=Font\nType=Font Black", faint, font, {200, 150, 16, 12}},
    {"Tex=Patch\nX=-1\nY=200\nW=90\nH=50\nColor=Any", patch, plain, {0, 0, 16, 12}},
    {"Tex=Strip\nX=200\nY=-1\nW=90\nH=50\nColor=Any", patch, plain, {0, 0, 4, 40}},
    {"Tex=Patch\nX=100\nY=250\nW=-1\nH=50\nColor=Any", patch, plain, {100, 250, 16, 12}},
    {"Tex=Patch\nX=200\nY=250\nW=90\nH=-1\nColor=Red\nType=Colorized", patch, red, {200, 250, 16, 12}},
};
constexpr QRect Scaled(100, 300, 40, 20);

/// Blended over `below`, each channel as a fraction of 255.
Pixel over(const Pixel& p, const Pixel& below) {
  Pixel result{0, 0, 0, 255};
  for (size_t i = 0; i < 3; ++i) result[i] = (p[i] * p[3] + below[i] * (255 - p[3])) / 255;
  return result;
}

/// The pixel of a picture of 2 x 2 that is stretched over the rectangle: between the four, by the distance from their
/// middles, and no further out than these.
Pixel stretched(int x, int y, const QSize& size) {
  const double u = std::clamp((x + 0.5) * 2 / size.width() - 0.5, 0.0, 1.0);
  const double v = std::clamp((y + 0.5) * 2 / size.height() - 0.5, 0.0, 1.0);
  Pixel result{0, 0, 0, 255};
  for (size_t i = 0; i < 3; ++i) {
    const double upper = pixelOf(blocks(0, 0))[i] * (1 - u) + pixelOf(blocks(1, 0))[i] * u;
    const double lower = pixelOf(blocks(0, 1))[i] * (1 - u) + pixelOf(blocks(1, 1))[i] * u;
    result[i] = upper * (1 - v) + lower * v;
  }
  return result;
}

}  // namespace

class PixelsOnScreenTest : public QObject {
  Q_OBJECT

 private:
  static void compare(const QImage& screen, const QPoint& place, const Pixel& expected, double tolerance) {
    const Pixel actual = pixelOf(screen.pixel(place));
    for (size_t i = 0; i < 3; ++i) {
      QVERIFY2(std::abs(actual[i] - expected[i]) <= tolerance,
               qPrintable(
                   u"%1, %2: channel %3 is %4 instead of %5"_s.arg(place.x()).arg(place.y()).arg(i).arg(actual[i]).arg(
                       expected[i])));
    }
  }

 private Q_SLOTS:
  void statics() {
    const support::GameFolder game;
    QByteArray theme = "[Colors]\nAny=1 2 3\nRed=255 0 0\nBlue=20 20 90\nFont=200 100 50\n[Loading]\n";
    for (size_t i = 0; i < std::size(Cases); ++i) {
      theme += "[LoadingStatic" + QByteArray::number(int(10 + i)) + "]\n" + Cases[i].keys + "\n";
    }
    theme += "[LoadingStaticScaled]\nTex=Blocks\nX=100\nY=300\nW=40\nH=20\nColor=Any\n";
    game.write(u"Themes/Alpha.ini"_s, theme);
    game.write(u"Skins/Alpha/One.ini"_s,
               "[Textures]\nPatch=patch.png\nFaint=faint.png\nStrip=strip.png\nBlocks=blocks.bmp\n");
    const auto save = [&](const char* name, const QImage& picture) {
      QVERIFY(picture.save(game.native(u"Skins/Alpha/"_s + QLatin1StringView(name))));
    };
    save("patch.png", pictureOf(patch, 16, 12));
    save("faint.png", pictureOf(faint, 16, 12));
    save("strip.png", pictureOf(patch, 4, 40));
    save("blocks.bmp", pictureOf(blocks, 2, 2));
    Program program(game);
    QVERIFY(QTest::qWaitForWindowExposed(&program.form));
    program.state.BackgroundColor = 0x8C5A28;
    QCursor::setPos(0, 0);  // no tool tip over the preview
    program.open();
    program.tools().move(program.form.geometry().bottomRight() + QPoint(40, -300));
    support::settle();

    const QImage screen = program.form.Workspace->Surface().image().convertToFormat(QImage::Format_RGB32);
    // At a whole scale each pixel of the surface is a square of the screen's; at others no screen can show it so.
    const double scale = program.form.devicePixelRatioF();
    const auto shown = [&] {
      const QPoint preview = program.form.Workspace->mapTo(&program.form, QPoint(0, 0));
      QImage grabbed = program.form.screen()
                           ->grabWindow(program.form.winId(), preview.x(), preview.y(), 800, 600)
                           .toImage()
                           .convertToFormat(QImage::Format_RGB32);
      grabbed.setDevicePixelRatio(1);
      return grabbed;
    };
    if (scale == std::floor(scale)) QTRY_COMPARE(shown(), screen.scaled(screen.size() * scale));
    const Pixel background{40, 90, 140, 255};
    QImage left(screen.size(), QImage::Format_Grayscale8);  // what no static covers
    left.fill(255);
    for (const Case& row : Cases) {
      for (int y = 0; y < row.place.height(); ++y) {
        for (int x = 0; x < row.place.width(); ++x) {
          const QPoint place = row.place.topLeft() + QPoint(x, y);
          left.scanLine(place.y())[place.x()] = 0;
          const bool covered = row.place.topLeft().isNull();  // two lie one over the other
          const Pixel below =
              covered && row.place.width() == 4 && y < 12 ? over(pixelOf(patch(x, y)), background) : background;
          if (covered && row.place.width() == 16 && x < 4) continue;
          compare(screen, place, over(row.type(pixelOf(row.source(x, y))), below), 1);
        }
      }
    }
    for (int y = 0; y < 600; ++y) {
      for (int x = 0; x < 800; ++x) {
        if (Scaled.contains(x, y)) {
          compare(screen, {x, y}, stretched(x - Scaled.x(), y - Scaled.y(), Scaled.size()), 4);
        } else if (left.constScanLine(y)[x] != 0) {
          compare(screen, {x, y}, background, 0);
        }
      }
    }
  }
};

QTEST_MAIN(PixelsOnScreenTest)
#include "pixels_on_screen_test.moc"
