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
    const auto lines = [](QSize size, int value, int orientation) {
      Properties bar = plainBar();
      bar.Value = value;
      bar.min = value;  // plays no part
      bar.Orientations = orientation;
      const QPoint along = orientation == 1 ? QPoint(1, 0) : QPoint(0, 1);
      const QPoint over = along.transposed();
      const QImage image = painted(orientation == 1 ? size : size.transposed(), bar).image();
      return QList<Levels>{greys(image, over, along), greys(image, along, over),
                           greys(image, along * (size.width() - 3), over)};
    };
    const Levels filled = {64, 218, 192, 166, 140, 64, 80, 96, 64, Nothing};
    const Levels track = {64, 252, 249, 247, 244, 192, 204, 217, 64, Nothing};
    const Levels bare = {64, 252, 252, 252, 252, 252, 252, 64, Nothing};
    const Levels half = {64, 218, 218, 218, 252, 252, 252, 64, Nothing};
    const Levels full = {64, 218, 218, 218, 218, 218, 218, 64, Nothing};
    const Levels down = {64, 248, 192, 64, Nothing};  // the middle of 5, and of 7
    const Levels up = {64, 251, 248, 245, 192, 64, Nothing};
    for (const int orientation : {1, 2}) {
      QCOMPARE(lines({9, 10}, 50, orientation), (QList<Levels>{half, filled, track}));
      QCOMPARE(lines({9, 10}, 100, orientation), (QList<Levels>{full, filled, filled}));
      QCOMPARE(lines({9, 10}, 0, orientation), (QList<Levels>{bare, track, track}));
      QCOMPARE(lines({9, 10}, 5, orientation), (QList<Levels>{bare, track, track}));
      QCOMPARE(lines({4, 5}, 0, orientation), (QList<Levels>{{64, 248, 64, Nothing}, down, down}));
      QCOMPARE(lines({4, 7}, 0, orientation), (QList<Levels>{{64, 251, 64, Nothing}, up, up}));
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
    const auto colors = [&bar](int theme) {
      Palette palette;
      bar.Theme = theme;
      LoadPalette(palette, bar);
      return QList<quint32>{palette.TrackFirst.End, palette.FilledFirst.Start, palette.FilledFirst.End,
                            palette.FilledSecond.End, palette.Outline};
    };
    bar.PBSCustomeColor1 = 0x0050C8;
    QCOMPARE(colors(11), QList<quint32>(5));
    QCOMPARE(colors(10), (QList<quint32>{0xF2F2F2, 0xB4FFFF, 0x3282FA, 0x50A0FF, 0x0050C8}));
    QCOMPARE(colors(9), (QList<quint32>{0xE1DBE1, 0xDFFBDF, 0x6CFF6C, 0xD9F4D9, 0xBCB8BC}));
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
    using Printings = std::vector<std::pair<QPoint, QRgb>>;
    const auto isPrinted = [](int number, bool enabled, const Printings& printings) {
      Properties bar = plainBar();
      bar.Text = QStringLiteral("Hig");
      bar.TextEffect = number;
      bar.Enabled = enabled;
      bar.TextForeColor = 0x0000C8;
      bar.TextEffectColor = 0xFF0000;
      bar.TextAlignment = 1;
      const QSize size(60, 40);
      Raster expected = painted(size, bar);
      for (const auto& [place, color] : printings) {
        platform::Print(expected, bar.TextFont, bar.Text, 1 + place.x(), place.y(), color);
      }
      bar.TextStyle = 3;
      return painted(size, bar).image() == expected.image();
    };
    const Printings outlined = {
        {{1, 0}, effect}, {{-1, 0}, effect}, {{0, -1}, effect}, {{0, 1}, effect}, {{0, 0}, text}};
    QVERIFY(isPrinted(1, true, {{{0, 0}, text}}));
    QVERIFY(isPrinted(2, true, {{{-1, -1}, effect}, {{1, 1}, grey}, {{0, 0}, text}}));
    QVERIFY(isPrinted(3, true, {{{1, 1}, effect}, {{-1, 0}, grey}, {{0, 0}, text}}));
    QVERIFY(isPrinted(4, true, outlined));
    QVERIFY(isPrinted(5, false, {{{1, 1}, greyEffect}, {{0, 0}, greyText}}));
    QVERIFY(isPrinted(0, true, {}) && isPrinted(6, true, {}));
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
