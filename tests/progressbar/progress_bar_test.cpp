#include "progressbar/progress_bar.h"

#include <QAccessible>
#include <QTest>

#include "drawing/raster_text.h"
#include "mainwindows/main_window_progress_bar.h"
#include "progressbar/caption.h"
#include "progressbar/gradients.h"
#include "progressbar/painting.h"
#include "progressbar/stored_form.h"
#include "propertybag/stored_bytes.h"
#include "support/pictures.h"

using namespace progressbar;
using drawing::Raster;
using propertybag::PropertyBag;

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
  loadPalette(palette, bar);
  paint(raster, bar, palette);
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

PropertyBag bagOf(const std::vector<std::pair<const char*, QVariant>>& values) {
  PropertyBag bag;
  for (const auto& [key, value] : values) bag.WriteProperty(QString::fromLatin1(key), value, {});
  return bag;
}

}  // namespace

class ProgressBarTest : public QObject {
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
    const Levels down = {64, 248, 192, 64, Nothing};  // the middle of 5, and of 7
    const Levels up = {64, 251, 248, 245, 192, 64, Nothing};
    for (const int orientation : {1, 2}) {
      QCOMPARE(lines({9, 10}, 50, orientation), (QList<Levels>{half, filled, track}));
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
    QCOMPARE(support::lettersOf(image, {{0U, ' '}, {qRgb(64, 64, 64), '#'}, {ButtonFace, '.'}}),
             (QByteArrayList{"  #####   ", " #.....#  ", "#.......# ", "#.......# ", "#.......# ", " #.....#  ",
                             "  #####   ", "          "}));
  }

  void fourCorners() {
    Raster raster(QSize(6, 3), qRgb(212, 212, 212));
    DrawGradientFourColour(raster, -1, 0, 5, 2, 0, 200, 100, 100);
    QCOMPARE(greys(raster.image(), QPoint(0, 0), QPoint(1, 0)), (QList<int>{40, 80, 120, 160, 212, 212}));
    QCOMPARE(greys(raster.image(), QPoint(0, 1), QPoint(1, 0)), (QList<int>{70, 90, 110, 130, 212, 212}));
  }

  void coloursOfThemes() {
    QCOMPARE(greyOf(0xFFFFFFU), 0xFFFFFFU);  // above the brightest
    QCOMPARE(greyOf(0x4ACC3EU), 0x727272U);  // lower channels count in the higher ones
    Properties bar = plainBar();
    const auto colors = [&bar](int theme) {
      Palette palette;
      bar.Theme = theme;
      loadPalette(palette, bar);
      return QList<quint32>{palette.trackFirst.end, palette.filledFirst.start, palette.filledFirst.end,
                            palette.filledSecond.end, palette.outline};
    };
    bar.PBSCustomeColor1 = 0x0050C8;
    QCOMPARE(colors(10), (QList<quint32>{0xF2F2F2, 0xB4FFFF, 0x3282FA, 0x50A0FF, 0x0050C8}));
    QCOMPARE(colors(9), (QList<quint32>{0xE1DBE1, 0xDFFBDF, 0x6CFF6C, 0xD9F4D9, 0xBCB8BC}));
    bar.Theme = 3;
    bar.Enabled = false;
    const QImage grey = painted(QSize(9, 10), bar).image();
    QCOMPARE((QList<QRgb>{grey.pixel(0, 0), grey.pixel(1, 5), grey.pixel(6, 5)}),
             (QList<QRgb>{qRgb(114, 114, 114), qRgb(110, 110, 110), qRgb(199, 199, 199)}));
  }

  void placesOfTheCaption() {
    using Place = std::optional<QPoint>;
    const QSize wide(801, 20);
    const QSize caption(31, 13);
    QCOMPARE(captionPlace(3, wide, caption), Place({1, 6}));
    QCOMPARE(captionPlace(5, wide, caption), Place({384, 2}));
    QCOMPARE(captionPlace(5, QSize(802, 22), caption), Place({384, 4}));  // up to the even pixel
    QCOMPARE(captionPlace(9, wide, caption), Place({767, 6}));
    QCOMPARE(captionPlace(10, wide, caption), Place());
  }

  void textsOfTheCaption() {
    Properties bar = plainBar();
    bar.Value = 7;
    bar.TextStyle = 1;
    QCOMPARE(captionText(bar, 50), QStringLiteral("7"));
    bar.TextStyle = 2;
    QCOMPARE(captionText(bar, 100 / 3.0), QStringLiteral("33.3333333333333%"));
    QCOMPARE(captionText(bar, 0.5), QStringLiteral("0.5%"));
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
        drawing::Print(expected, bar.TextFont, bar.Text, 1 + place.x(), place.y(), color);
      }
      bar.TextStyle = 3;
      return painted(size, bar).image() == expected.image();
    };
    const Printings outlined = {
        {{1, 0}, effect}, {{-1, 0}, effect}, {{0, -1}, effect}, {{0, 1}, effect}, {{0, 0}, text}};
    QVERIFY(isPrinted(2, true, {{{-1, -1}, effect}, {{1, 1}, grey}, {{0, 0}, text}}));
    QVERIFY(isPrinted(3, true, {{{1, 1}, effect}, {{-1, 0}, grey}, {{0, 0}, text}}));
    QVERIFY(isPrinted(4, true, outlined));
    QVERIFY(isPrinted(5, false, {{{1, 1}, greyEffect}, {{0, 0}, greyText}}));
    QVERIFY(isPrinted(6, true, {}));
  }

  // min, max and Value before and after a write, and what was told.
  void rangeRules() {
    const auto after = [](int min, int max, int value, void (ProgressBar::*write)(int), int written) {
      ProgressBar bar;
      bar.SetMax(max);
      bar.SetMin(min);
      bar.SetValue(value);
      QString told;
      connect(&bar, &ProgressBar::PropertyChanged, [&told](const QString& key) { told += u' ' + key; });
      (bar.*write)(written);
      return QStringLiteral("%1 %2 %3").arg(bar.min()).arg(bar.max()).arg(bar.Value()) + told;
    };
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetValue, 150), QStringLiteral("0 100 100 Value"));
    QCOMPARE(after(0, 100, 1, &ProgressBar::SetMax, 0), QStringLiteral("0 1 1 Max"));
    QCOMPARE(after(20, 100, 20, &ProgressBar::SetMax, 10), QStringLiteral("20 21 20 Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMax, 40), QStringLiteral("0 40 40 Value Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMin, 200), QStringLiteral("99 100 99 Value Min"));
  }

  void bags() {
    ProgressBar bar;
    bar.setObjectName(QStringLiteral("ProgressBar1"));
    bar.SetValue(3);
    readProperties(bar, PropertyBag());  // gives the stored defaults
    QCOMPARE(bar.Value(), 50);
    QCOMPARE(bar.state().TextEffectColor, 0xC8C8C8U);
    QCOMPARE(bar.state().Text, QStringLiteral("ProgressBar1"));
    // The value is read behind its range, and a key that fails is passed over.
    readProperties(bar, bagOf({{"value", 700}, {"MIN", 300}, {"Theme", QStringLiteral("blue")}, {"max", 900}}));
    QCOMPARE((QList<int>{bar.min(), bar.max(), bar.Value()}), (QList<int>{300, 900, 700}));
    const QAccessibleValueInterface& seen = *QAccessible::queryAccessibleInterface(&bar)->valueInterface();
    QCOMPARE((QVariantList{seen.minimumValue(), seen.maximumValue(), seen.currentValue()}),
             (QVariantList{300, 900, 700}));
    readProperties(bar, bagOf({{"Max", 3000000000U}, {"value", 7}}));
    QCOMPARE(bar.Value(), 7);
  }

  // Colours come as negative numbers when they are the system's.
  void bytesGoRound() {
    const QByteArray own = propertybag::storedBytes(bagOf(
        {{"_extentx", 265}, {"_extenty", 529}, {"Text", QStringLiteral("bar")}, {"PBSCustomeColor2", -2147483633}}));
    const struct {
      QByteArray stored;
      QSize size;
      quint32 track;
    } rows[] = {{mainwindows::mainWindowBar(), QSize(801, 20), 0xC0C0C0U}, {own, QSize(10, 20), 0x8000000FU}};
    for (const auto& [stored, size, track] : rows) {
      ProgressBar bar;
      QVERIFY(readProperties(bar, stored));
      QCOMPARE(writeProperties(bar).toHex(' '), stored.toHex(' '));
      QCOMPARE(bar.size(), size);
      QCOMPARE(bar.state().PBSCustomeColor2, track);
      QVERIFY(!readProperties(bar, stored.chopped(1)));
      QCOMPARE(bar.state().RoundedValue, 5);
    }
  }
};

QTEST_MAIN(ProgressBarTest)
#include "progress_bar_test.moc"
