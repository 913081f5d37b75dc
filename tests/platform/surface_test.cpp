#include "platform/surface.h"

#include <cmath>
#include <limits>

#include <QFontInfo>
#include <QTest>

#include "platform/fonts.h"
#include "platform/graphics.h"
#include "support/pictures.h"

using namespace platform;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb White = qRgb(255, 255, 255);
constexpr QRgb Red = qRgb(200, 30, 10);

/// A white surface that nothing has been drawn on.
struct Sheet : Surface {
  Sheet() {
    Wipe(Qt::white);
    TakeDirty();
  }
  void printAt(float x, float y, const QString& text) {
    CurrentX = x;
    CurrentY = y;
    Print(text);
  }
};

}  // namespace

class SurfaceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void stretchedPicturesHaveCleanEdges() {
    for (const QRect& target : {
             QRect(10, 10, 100, 80),
             QRect(5, 5, 7, 5),                // its own size
             QRect(-50, -20, 300, 100),        // over the corner
             QRect(-100, -100, 32767, 32767),  // enormous
             QRect(-32000, 0, 32767, 3),       // its far end
             QRect(800, 0, 10, 10),            // outside
             QRect(10, 10, 0, 20),
             QRect(10, 10, -5, 20),
         }) {
      Sheet surface;
      surface.DrawImageRect(plainPicture(7, 5, Red), target.x(), target.y(), target.width(), target.height());
      const QRect shown = target.isEmpty() ? QRect() : target & surface.image().rect();
      QCOMPARE(surface.TakeDirty(), shown);
      QCOMPARE(surface.TakeDirty(), QRect());
      QCOMPARE(inkOf(surface.image()), shown);
      if (!shown.isEmpty()) QVERIFY(inkOf(surface.image().copy(shown), Red).isNull());
    }
  }

  void blendsAndScales() {
    Sheet surface;
    QImage picture = plainPicture(3, 1, qRgba(0, 0, 0, 128));
    picture.setPixel(1, 0, qRgba(1, 2, 3, 255));
    picture.setPixel(2, 0, qRgba(1, 2, 3, 0));
    surface.DrawImage(picture, 10, 10);
    QCOMPARE(qRed(surface.image().pixel(10, 10)), 127);
    QCOMPARE(surface.image().pixel(11, 10), qRgb(1, 2, 3));
    QCOMPARE(surface.image().pixel(12, 10), White);
    QImage ramp = plainPicture(2, 1, White);
    ramp.setPixel(0, 0, qRgb(0, 0, 0));
    surface.DrawImageRect(ramp, 0, 0, 16, 2);
    for (int x = 0; x < 16; ++x) {
      const double expected = std::clamp((x + 0.5) / 8 - 0.5, 0.0, 1.0) * 255;
      QVERIFY(std::abs(qRed(surface.image().pixel(x, 1)) - expected) < 3);
    }
  }

  void textStandsAtThePen() {
    Sheet surface;
    surface.SetFontName(u"Eurostar Black"_s);
    surface.SetFontSize(48);
    surface.printAt(100, 50, u"Hg"_s);
    const QRect ink = inkOf(surface.image());
    QVERIFY(surface.TakeDirty().contains(ink));
    const QRectF cell(100, 50, surface.TextWidth(u"Hg"_s), surface.TextHeight(u"Hg"_s));
    QVERIFY(cell.adjusted(-3, -3, 3, 3).contains(QRectF(ink)));
    QVERIFY(ink.height() > cell.height() / 2 && ink.width() > cell.width() / 2);
    // No colour fringes.
    for (int x = ink.left(); x <= ink.right(); ++x) QVERIFY(qIsGray(surface.image().pixel(x, ink.center().y())));
    // Fractions of a pixel count.
    Sheet whole;
    Sheet half;
    whole.printAt(20, 20, u"lIl"_s);
    half.printAt(20.5F, 20, u"lIl"_s);
    QVERIFY(whole.image() != half.image());
  }

  void sizes() {
    Surface surface;
    surface.SetFontSize(-4);
    surface.SetFontSize(std::nanf(""));
    QCOMPARE(surface.FontSize(), 8.25F);
    QVERIFY(surface.TextHeight(QString()) > 8.25);
    QCOMPARE(surface.TextWidth(QString()), 0.0);
    // Glyphs are as large as the nearest whole pixel: 19 for 18.67.
    const auto widthAt = [&](float points) {
      surface.SetFontSize(points);
      return surface.TextWidth(u"wide words"_s);
    };
    QCOMPARE(widthAt(14), widthAt(14.25F));
    QVERIFY(widthAt(13.5F) < widthAt(14));
    surface.SetFontSize(1e9F);
    QCOMPARE(surface.FontSize(), 2160.0F);
  }

  void placesOutsideAreLeftOut() {
    Sheet surface;
    const float far = std::numeric_limits<float>::max();
    for (const float place : {far, -far, 900.0F, -900.0F, std::numeric_limits<float>::infinity(), std::nanf("")}) {
      surface.printAt(place, 10, u"text"_s);
      surface.printAt(10, place, u"text"_s);
    }
    QVERIFY(inkOf(surface.image()).isNull());
  }

  void endedSessionDrawsNothing() {
    Sheet surface;
    Graphics graphics;
    QCOMPARE(graphics.CreateFrom(surface), 0);
    graphics.DrawImage(plainPicture(5, 5, Red), 0, 0);
    graphics.DrawImageRect(QImage(), 0, 0, 50, 50);
    QCOMPARE(graphics.Delete(), 0);
    graphics.DrawImage(plainPicture(5, 5, Red), 20, 20);
    QCOMPARE(inkOf(surface.image()), QRect(0, 0, 5, 5));
  }

  void facesOfTheTexts() {
    const auto stands = [](const QString& family, const QString& face, bool black = false) {
      const QFontInfo info(FaceFont(face));
      const bool machineHasIt = info.family().compare(face, Qt::CaseInsensitive) == 0;
      return machineHasIt || (info.family() == family && (info.weight() >= QFont::Black) == black);
    };
    QVERIFY(stands(u"DejaVu Sans"_s, u"Eurostar Regular Extended"_s));
    QVERIFY(stands(u"Lato"_s, u"Eurostar Black"_s, true));
    QVERIFY(stands(u"Lato"_s, u"arial black"_s, true));
    QVERIFY(stands(u"Liberation Mono"_s, u"Courier New"_s));
    QVERIFY(stands(u"Liberation Sans"_s, u"No such face at all"_s));
    QVERIFY(stands({}, u"Liberation Serif"_s));
  }
};

QTEST_MAIN(SurfaceTest)
#include "surface_test.moc"
