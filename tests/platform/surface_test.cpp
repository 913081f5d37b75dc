#include "platform/surface.h"

#include <cmath>
#include <limits>

#include <QTest>

#include "platform/graphics.h"

using namespace platform;

namespace {

constexpr QRgb White = qRgb(255, 255, 255);
constexpr QRgb Red = qRgb(200, 30, 10);

QImage plain(int width, int height, QRgb color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

/// The rectangle round all pixels that differ from the colour.
QRect drawn(const QImage& image, QRgb ground) {
  QRect rectangle;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != ground) rectangle |= QRect(x, y, 1, 1);
    }
  }
  return rectangle;
}

}  // namespace

class SurfaceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void stretchedPicturesHaveCleanEdges_data() {
    QTest::addColumn<QRect>("target");
    QTest::newRow("larger") << QRect(10, 10, 100, 80);
    QTest::newRow("own size") << QRect(5, 5, 7, 5);
    QTest::newRow("over the corner") << QRect(-50, -20, 300, 100);
    QTest::newRow("enormous") << QRect(-100, -100, 32767, 32767);
    QTest::newRow("its far end") << QRect(-32000, 0, 32767, 3);
    QTest::newRow("outside") << QRect(800, 0, 10, 10);
    QTest::newRow("empty") << QRect(10, 10, 0, 20);
    QTest::newRow("negative") << QRect(10, 10, -5, 20);
  }

  void stretchedPicturesHaveCleanEdges() {
    QFETCH(QRect, target);
    Surface surface;
    surface.Wipe(Qt::white);
    surface.TakeDirty();
    surface.DrawImageRect(plain(7, 5, Red), target.x(), target.y(), target.width(), target.height());
    const QRect shown = target.isEmpty() ? QRect() : target & surface.image().rect();
    QCOMPARE(surface.TakeDirty(), shown);
    QCOMPARE(surface.TakeDirty(), QRect());
    QCOMPARE(drawn(surface.image(), White), shown);
    if (!shown.isEmpty()) QVERIFY(drawn(surface.image().copy(shown), Red).isNull());
  }

  void blendsAndScales() {
    Surface surface;
    surface.Wipe(Qt::white);
    QImage picture = plain(3, 1, qRgba(0, 0, 0, 128));
    picture.setPixel(1, 0, qRgba(1, 2, 3, 255));
    picture.setPixel(2, 0, qRgba(1, 2, 3, 0));
    surface.DrawImage(picture, 10, 10);
    QCOMPARE(qRed(surface.image().pixel(10, 10)), 127);
    QCOMPARE(surface.image().pixel(11, 10), qRgb(1, 2, 3));
    QCOMPARE(surface.image().pixel(12, 10), White);
    QImage ramp = plain(2, 1, White);
    ramp.setPixel(0, 0, qRgb(0, 0, 0));
    surface.DrawImageRect(ramp, 0, 0, 16, 2);
    for (int x = 0; x < 16; ++x) {
      const double expected = std::clamp((x + 0.5) / 8 - 0.5, 0.0, 1.0) * 255;
      QVERIFY(std::abs(qRed(surface.image().pixel(x, 1)) - expected) < 3);
    }
  }

  void textStandsAtThePen() {
    Surface surface;
    surface.Wipe(Qt::white);
    surface.TakeDirty();
    surface.SetFontName(QStringLiteral("Eurostar Black"));
    surface.SetFontSize(48);
    surface.CurrentX = 100;
    surface.CurrentY = 50;
    const QString text = QStringLiteral("Hg");
    surface.Print(text);
    const QRect ink = drawn(surface.image(), White);
    QVERIFY(surface.TakeDirty().contains(ink));
    const QRectF cell(100, 50, surface.TextWidth(text), surface.TextHeight(text));
    QVERIFY(cell.adjusted(-3, -3, 3, 3).contains(QRectF(ink)));
    QVERIFY(ink.height() > cell.height() / 2 && ink.width() > cell.width() / 2);
    // No colour fringes.
    for (int x = ink.left(); x <= ink.right(); ++x) {
      QVERIFY(qIsGray(surface.image().pixel(x, ink.center().y())));
    }
  }

  void textKeepsFractions() {
    const auto at = [](float x) {
      Surface surface;
      surface.Wipe(Qt::white);
      surface.CurrentX = x;
      surface.CurrentY = 20;
      surface.Print(QStringLiteral("lIl"));
      return surface.image();
    };
    QVERIFY(at(20) != at(20.5F));
  }

  void sizes() {
    Surface surface;
    QCOMPARE(surface.FontSize(), 8.25F);
    surface.SetFontSize(-4);
    surface.SetFontSize(std::nanf(""));
    QCOMPARE(surface.FontSize(), 8.25F);
    QVERIFY(surface.TextHeight(QString()) > 8.25);
    QCOMPARE(surface.TextWidth(QString()), 0.0);
    // Glyphs are as large as the nearest whole pixel: 19 for 18.67.
    const auto widthAt = [&](float points) {
      surface.SetFontSize(points);
      return surface.TextWidth(QStringLiteral("wide words"));
    };
    QCOMPARE(widthAt(14), widthAt(14.25F));
    QVERIFY(widthAt(13.5F) < widthAt(14));
    surface.SetFontSize(1e9F);
    QCOMPARE(surface.FontSize(), 2160.0F);
  }

  void placesOutsideAreLeftOut() {
    Surface surface;
    surface.Wipe(Qt::white);
    const float far = std::numeric_limits<float>::max();
    for (const float place : {far, -far, 900.0F, -900.0F, std::numeric_limits<float>::infinity(), std::nanf("")}) {
      surface.CurrentX = place;
      surface.CurrentY = 10;
      surface.Print(QStringLiteral("text"));
      surface.CurrentX = 10;
      surface.CurrentY = place;
      surface.Print(QStringLiteral("text"));
    }
    QVERIFY(drawn(surface.image(), White).isNull());
  }

  void failedSessionDrawsNothing() {
    Surface surface;
    surface.Wipe(Qt::white);
    Graphics graphics;
    QCOMPARE(graphics.CreateFrom(surface), 0);
    graphics.DrawImage(plain(5, 5, Red), 0, 0);
    graphics.DrawImageRect(QImage(), 0, 0, 50, 50);
    QCOMPARE(graphics.Delete(), 0);
    graphics.DrawImage(plain(5, 5, Red), 20, 20);
    QCOMPARE(drawn(surface.image(), White), QRect(0, 0, 5, 5));
  }
};

QTEST_MAIN(SurfaceTest)
#include "surface_test.moc"
