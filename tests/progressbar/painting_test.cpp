#include "progressbar/painting.h"

#include <QTest>

#include "platform/raster_text.h"
#include "progressbar/caption.h"
#include "progressbar/gradients.h"
#include "progressbar/progress_bar.h"

using namespace progressbar;
using platform::Raster;

namespace {

constexpr int Nothing = -1;
constexpr QRgb ButtonFace = qRgb(212, 208, 200);

/// Grey on light grey, half full, without a caption.
Properties plainBar() {
  Properties bar;
  bar.Value = 50;
  bar.max = 100;
  bar.Enabled = true;
  bar.Theme = 10;
  bar.PBSCustomeColor1 = 0x404040;
  bar.PBSCustomeColor2 = 0xC0C0C0;
  bar.Orientations = 1;
  bar.TextEffect = 1;
  bar.TextAlignment = 5;
  bar.TextFont = QFont(QStringLiteral("Liberation Sans"), 9);
  return bar;
}

Raster painted(const QSize& size, const Properties& bar) {
  Raster raster(size);
  Palette palette;
  LoadPalette(palette, bar);
  Paint(raster, bar, palette);
  return raster;
}

/// The grey levels from the first pixel on; nothing where it is transparent.
QList<int> greys(const QImage& image, QPoint first, QPoint step) {
  QList<int> levels;
  for (QPoint place = first; image.rect().contains(place); place += step) {
    const QRgb pixel = image.pixel(place);
    levels << (qAlpha(pixel) == 0 ? Nothing : qRed(pixel));
  }
  return levels;
}

}  // namespace

class PaintingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // Lines along the bar and across it at its two ends. A vertical bar is a horizontal one with its axes changed.
  void bands() {
    using Levels = QList<int>;
    const Levels filled = {64, 218, 192, 166, 140, 64, 80, 96, 64, Nothing};
    const Levels track = {64, 252, 249, 247, 244, 192, 204, 217, 64, Nothing};
    const Levels bare = {64, 252, 252, 252, 252, 252, 252, 64, Nothing};
    const Levels half = {64, 218, 218, 218, 252, 252, 252, 64, Nothing};
    const Levels full = {64, 218, 218, 218, 218, 218, 218, 64, Nothing};
    const Levels lower = {64, 248, 192, 64, Nothing};
    const Levels upper = {64, 251, 248, 245, 192, 64, Nothing};
    const struct {
      const char* name;
      QSize size;
      int value;
      Levels along, first, last;
    } rows[] = {
        {"half, to the even pixel", {9, 10}, 50, half, filled, track},
        {"full", {9, 10}, 100, full, filled, filled},
        {"empty", {9, 10}, 0, bare, track, track},
        {"less than half a pixel", {9, 10}, 5, bare, track, track},
        {"middle rounded down", {4, 5}, 0, {64, 248, 64, Nothing}, lower, lower},
        {"middle rounded up", {4, 7}, 0, {64, 251, 64, Nothing}, upper, upper},
    };
    for (const auto& row : rows) {
      Properties bar = plainBar();
      bar.Value = row.value;
      bar.min = row.value;  // plays no part
      const QPoint right(1, 0);
      const QPoint down(0, 1);
      for (const int orientation : {1, 2}) {
        bar.Orientations = orientation;
        const bool across = orientation == 1;
        const QImage image = painted(across ? row.size : row.size.transposed(), bar).image();
        const QPoint along = across ? right : down;
        const QPoint over = across ? down : right;
        QVERIFY2(greys(image, over, along) == row.along, row.name);
        QVERIFY2(greys(image, along, over) == row.first, row.name);
        QVERIFY2(greys(image, along * (row.size.width() - 3), over) == row.last, row.name);
      }
    }
  }

  void roundedOutlineInsideTheRegion() {
    Properties bar = plainBar();
    bar.RoundedValue = 6;
    bar.Orientations = 3;
    const QImage image = painted(QSize(10, 8), bar).image();
    const char* const rows[] = {"  #####   ", " #.....#  ", "#.......# ", "#.......# ",
                                "#.......# ", " #.....#  ", "  #####   ", "          "};
    for (int i = 0; i < 80; ++i) {
      const char letter = rows[i / 10][i % 10];
      QCOMPARE(image.pixel(i % 10, i / 10), letter == ' ' ? 0U : letter == '#' ? qRgb(64, 64, 64) : ButtonFace);
    }
  }

  void coloursOfThemes() {
    Properties bar = plainBar();
    Palette palette;
    bar.Theme = 11;
    LoadPalette(palette, bar);
    QCOMPARE(palette.FilledSecond.Start, 0U);
    bar.Theme = 10;
    bar.PBSCustomeColor1 = 0x0050C8;
    LoadPalette(palette, bar);
    QCOMPARE(palette.FilledFirst.Start, 0xB4FFFFU);
    QCOMPARE(palette.FilledFirst.End, 0x3282FAU);
    QCOMPARE(palette.FilledSecond.End, 0x50A0FFU);
    bar.Theme = 9;
    LoadPalette(palette, bar);
    QCOMPARE(palette.TrackFirst.End, 0xE1DBE1U);
    QCOMPARE(palette.Outline, 0xBCB8BCU);
    bar.Theme = 3;
    bar.Enabled = false;
    const QImage grey = painted(QSize(9, 10), bar).image();
    QCOMPARE((QList<QRgb>{grey.pixel(0, 0), grey.pixel(1, 5), grey.pixel(6, 5)}),
             (QList<QRgb>{qRgb(114, 114, 114), qRgb(110, 110, 110), qRgb(199, 199, 199)}));
  }

  void aMissingThemeKeepsTheColours() {
    ProgressBar bar;
    bar.resize(60, 12);
    bar.SetTheme(3);
    const QImage before = bar.grab().toImage();
    bar.SetEnabled(false);
    bar.SetTheme(0);
    QVERIFY(bar.grab().toImage() != before);
    bar.SetEnabled(true);
    QCOMPARE(bar.grab().toImage(), before);
  }

  void greysOfColours() {
    QCOMPARE(GreyOf(0U), 0U);
    QCOMPARE(GreyOf(0x00FF00U), 0x555555U);
    QCOMPARE(GreyOf(0xFFFFFFU), 0xFFFFFFU);  // above the brightest
    QCOMPARE(GreyOf(0x4ACC3EU), 0x727272U);  // lower channels count in the higher ones
    QCOMPARE(GreyOf(0x000080U), 0x2B2B2BU);
  }

  void placesOfTheCaption() {
    using Place = std::optional<QPoint>;
    const QSize wide(801, 20);
    const QSize caption(31, 13);
    QCOMPARE(CaptionPlace(1, wide, caption), Place({1, 0}));
    QCOMPARE(CaptionPlace(3, wide, caption), Place({1, 6}));
    QCOMPARE(CaptionPlace(5, wide, caption), Place({384, 2}));
    QCOMPARE(CaptionPlace(5, QSize(802, 22), caption), Place({384, 4}));  // up to the even pixel
    QCOMPARE(CaptionPlace(9, wide, caption), Place({767, 6}));
    QCOMPARE(CaptionPlace(9, QSize(10, 5), caption), Place({-24, -9}));
    QCOMPARE(CaptionPlace(10, wide, caption), Place());
  }

  void textsOfTheCaption() {
    const auto text = [](int style, int value, int max) {
      Properties bar = plainBar();
      bar.Value = value;
      bar.TextStyle = style;
      bar.Text = QStringLiteral("Loading");
      return CaptionText(bar, value * 100.0 / max);
    };
    QCOMPARE(text(1, 7, 30), QStringLiteral("7"));
    QCOMPARE(text(2, 1, 3), QStringLiteral("33.3333333333333%"));
    QCOMPARE(text(2, 2000000000, 2000000000), QStringLiteral("100%"));
    QCOMPARE(text(2, 1, 200), QStringLiteral("0.5%"));
    QCOMPARE(text(3, 1, 3), QStringLiteral("Loading"));
    QCOMPARE(text(4, 1, 3), QString());
  }

  // Printings in their order, the caption itself as the last one.
  void effects() {
    constexpr QRgb text = qRgb(200, 0, 0);
    constexpr QRgb effect = qRgb(0, 0, 255);
    constexpr QRgb grey = qRgb(128, 128, 128);
    constexpr QRgb greyText = qRgb(67, 67, 67);
    constexpr QRgb greyEffect = qRgb(85, 85, 85);
    const struct {
      const char* name;
      int effect;
      bool enabled;
      std::vector<std::pair<QPoint, QRgb>> printings;
    } rows[] = {
        {"plain", 1, true, {{{0, 0}, text}}},
        {"raised", 2, true, {{{-1, -1}, effect}, {{1, 1}, grey}, {{0, 0}, text}}},
        {"sunken", 3, true, {{{1, 1}, effect}, {{-1, 0}, grey}, {{0, 0}, text}}},
        {"outlined",
         4,
         true,
         {{{1, 0}, effect}, {{-1, 0}, effect}, {{0, -1}, effect}, {{0, 1}, effect}, {{0, 0}, text}}},
        {"shadow, disabled", 5, false, {{{1, 1}, greyEffect}, {{0, 0}, greyText}}},
        {"none", 6, true, {}},
        {"below the first", 0, true, {}},
    };
    for (const auto& row : rows) {
      Properties bar = plainBar();
      bar.Text = QStringLiteral("Hig");
      bar.TextEffect = row.effect;
      bar.Enabled = row.enabled;
      bar.TextForeColor = 0x0000C8;
      bar.TextEffectColor = 0xFF0000;
      bar.TextAlignment = 1;
      const QSize size(60, 40);
      Raster expected = painted(size, bar);
      for (const auto& [place, color] : row.printings) {
        platform::Print(expected, bar.TextFont, bar.Text, 1 + place.x(), place.y(), color);
      }
      bar.TextStyle = 3;
      QVERIFY2(painted(size, bar).image() == expected.image(), row.name);
    }
  }

  void fourCorners() {
    Raster raster(QSize(6, 3), ButtonFace);
    DrawGradientFourColour(raster, -1, 0, 5, 2, 0, 200, 100, 100);
    QCOMPARE(greys(raster.image(), QPoint(0, 0), QPoint(1, 0)), (QList<int>{40, 80, 120, 160, 212, 212}));
    QCOMPARE(greys(raster.image(), QPoint(0, 1), QPoint(1, 0)), (QList<int>{70, 90, 110, 130, 212, 212}));
    const QImage before = raster.image();
    DrawGradientFourColour(raster, 0, 0, 0, 3, 0, 0, 0, 0);
    GradientTwoColour(raster, 2, 0, 0, 0, 0, 6, 3);
    QCOMPARE(raster.image(), before);
  }
};

QTEST_MAIN(PaintingTest)
#include "painting_test.moc"
