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
  void bands_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("along");
    QTest::addColumn<QList<int>>("first");
    QTest::addColumn<QList<int>>("last");
    using Levels = QList<int>;
    const Levels filled = {64, 218, 192, 166, 140, 64, 80, 96, 64, Nothing};
    const Levels track = {64, 252, 249, 247, 244, 192, 204, 217, 64, Nothing};
    const Levels bare = {64, 252, 252, 252, 252, 252, 252, 64, Nothing};
    QTest::newRow("half, to the even pixel")
        << QSize(9, 10) << 50 << Levels{64, 218, 218, 218, 252, 252, 252, 64, Nothing} << filled << track;
    QTest::newRow("full") << QSize(9, 10) << 100 << Levels{64, 218, 218, 218, 218, 218, 218, 64, Nothing} << filled
                          << filled;
    QTest::newRow("empty") << QSize(9, 10) << 0 << bare << track << track;
    QTest::newRow("less than half a pixel") << QSize(9, 10) << 5 << bare << track << track;
    QTest::newRow("middle rounded down") << QSize(4, 5) << 0 << Levels{64, 248, 64, Nothing}
                                         << Levels{64, 248, 192, 64, Nothing} << Levels{64, 248, 192, 64, Nothing};
    QTest::newRow("middle rounded up") << QSize(4, 7) << 0 << Levels{64, 251, 64, Nothing}
                                       << Levels{64, 251, 248, 245, 192, 64, Nothing}
                                       << Levels{64, 251, 248, 245, 192, 64, Nothing};
  }

  void bands() {
    QFETCH(QSize, size);
    QFETCH(int, value);
    Properties bar = plainBar();
    bar.Value = value;
    bar.min = value;  // plays no part
    const auto compare = [&](const QImage& image, QPoint along, QPoint across) {
      QTEST(greys(image, across, along), "along");
      QTEST(greys(image, along, across), "first");
      QTEST(greys(image, along * (size.width() - 3), across), "last");
    };
    compare(painted(size, bar).image(), QPoint(1, 0), QPoint(0, 1));
    bar.Orientations = 2;
    compare(painted(size.transposed(), bar).image(), QPoint(0, 1), QPoint(1, 0));
  }

  void roundedOutlineInsideTheRegion() {
    Properties bar = plainBar();
    bar.RoundedValue = 6;
    bar.Orientations = 3;
    const QImage image = painted(QSize(10, 8), bar).image();
    const char* const rows[] = {"  #####   ", " #.....#  ", "#.......# ", "#.......# ",
                                "#.......# ", " #.....#  ", "  #####   ", "          "};
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const char letter = rows[y][x];
        QCOMPARE(image.pixel(x, y), letter == ' ' ? 0U : letter == '#' ? qRgb(64, 64, 64) : ButtonFace);
      }
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

  void greysOfColours_data() {
    QTest::addColumn<quint32>("color");
    QTest::addColumn<int>("level");
    QTest::newRow("black") << 0U << 0;
    QTest::newRow("white, above the brightest") << 0xFFFFFFU << 255;
    QTest::newRow("lower channels count in the higher ones") << 0x4ACC3EU << 114;
    QTest::newRow("half to the even neighbour") << 0x000080U << 43;
    QTest::newRow("green") << 0x00FF00U << 85;
  }
  void greysOfColours() {
    QFETCH(quint32, color);
    QFETCH(int, level);
    QCOMPARE(GreyOf(color), quint32(level) * 0x010101U);
  }

  void placesOfTheCaption_data() {
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QSize>("bar");
    QTest::addColumn<std::optional<QPoint>>("place");
    using Place = std::optional<QPoint>;
    const QSize wide(801, 20);
    QTest::newRow("top left") << 1 << wide << Place({1, 0});
    QTest::newRow("bottom left") << 3 << wide << Place({1, 6});
    QTest::newRow("middle") << 5 << wide << Place({384, 2});
    QTest::newRow("middle, up to the even pixel") << 5 << QSize(802, 22) << Place({384, 4});
    QTest::newRow("bottom right") << 9 << wide << Place({767, 6});
    QTest::newRow("larger than the bar") << 9 << QSize(10, 5) << Place({-24, -9});
    QTest::newRow("above the last") << 10 << wide << Place();
  }
  void placesOfTheCaption() {
    QFETCH(int, alignment);
    QFETCH(QSize, bar);
    QTEST(CaptionPlace(alignment, bar, QSize(31, 13)), "place");
  }

  void textsOfTheCaption_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("value") << 1 << 7 << 30 << QStringLiteral("7");
    QTest::newRow("fraction") << 2 << 1 << 3 << QStringLiteral("33.3333333333333%");
    QTest::newRow("whole") << 2 << 2000000000 << 2000000000 << QStringLiteral("100%");
    QTest::newRow("below one") << 2 << 1 << 200 << QStringLiteral("0.5%");
    QTest::newRow("text") << 3 << 1 << 3 << QStringLiteral("Loading");
    QTest::newRow("none") << 4 << 1 << 3 << QString();
  }
  void textsOfTheCaption() {
    QFETCH(int, style);
    QFETCH(int, value);
    QFETCH(int, max);
    Properties bar = plainBar();
    bar.Value = value;
    bar.TextStyle = style;
    bar.Text = QStringLiteral("Loading");
    QTEST(CaptionText(bar, value * 100.0 / max), "text");
  }

  void effects_data() {
    QTest::addColumn<int>("effect");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QList<QPoint>>("places");
    QTest::addColumn<QList<QRgb>>("colors");
    constexpr QRgb text = qRgb(200, 0, 0);
    constexpr QRgb effect = qRgb(0, 0, 255);
    constexpr QRgb grey = qRgb(128, 128, 128);
    using Places = QList<QPoint>;
    using Colors = QList<QRgb>;
    QTest::newRow("raised") << 2 << true << Places{{-1, -1}, {1, 1}, {0, 0}} << Colors{effect, grey, text};
    QTest::newRow("sunken") << 3 << true << Places{{1, 1}, {-1, 0}, {0, 0}} << Colors{effect, grey, text};
    QTest::newRow("outlined") << 4 << true << Places{{1, 0}, {-1, 0}, {0, -1}, {0, 1}, {0, 0}}
                              << Colors{effect, effect, effect, effect, text};
    QTest::newRow("shadow, disabled") << 5 << false << Places{{1, 1}, {0, 0}}
                                      << Colors{qRgb(85, 85, 85), qRgb(67, 67, 67)};
    QTest::newRow("none") << 6 << true << Places{} << Colors{};
    QTest::newRow("below the first") << 0 << true << Places{} << Colors{};
  }
  void effects() {
    QFETCH(int, effect);
    QFETCH(bool, enabled);
    QFETCH(QList<QPoint>, places);
    QFETCH(QList<QRgb>, colors);
    Properties bar = plainBar();
    bar.Text = QStringLiteral("Hig");
    bar.TextEffect = effect;
    bar.Enabled = enabled;
    bar.TextForeColor = 0x0000C8;
    bar.TextEffectColor = 0xFF0000;
    bar.TextAlignment = 1;
    const QSize size(60, 40);
    Raster expected = painted(size, bar);
    for (int i = 0; i < places.size(); ++i) {
      platform::Print(expected, bar.TextFont, bar.Text, 1 + places[i].x(), places[i].y(), colors[i]);
    }
    bar.TextStyle = 3;
    QCOMPARE(painted(size, bar).image(), expected.image());
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
