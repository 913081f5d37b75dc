#include <QFontInfo>
#include <QPainter>
#include <QTest>

#include "drawing/fonts.h"
#include "drawing/ramps.h"
#include "drawing/raster_pictures.h"
#include "drawing/raster_text.h"
#include "drawing/surface.h"
#include "support/pictures.h"

using namespace drawing;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Ground = qRgb(255, 255, 255);
constexpr QRgb Edge = qRgb(10, 20, 30);
constexpr QRgb Inside = qRgb(200, 150, 100);

/// # edge, o inside, . untouched.
QByteArrayList letters(const Raster& raster) {
  return lettersOf(raster.image(), {{Ground, '.'}, {Edge, '#'}, {Inside, 'o'}});
}

QImage picture(const QList<QRgb>& pixels, int width) {
  return pictureOf(width, static_cast<int>(pixels.size()) / width, [&](int x, int y) { return pixels[y * width + x]; });
}

/// A white surface that nothing has been drawn on.
struct Sheet : Surface {
  Sheet() {
    wipe(Qt::white);
    takeDirty();
  }
};

}  // namespace

class DrawingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void shortRamps() {
    const QRgb from = qRgb(10, 20, 30), to = qRgb(30, 40, 50);
    Raster raster(QSize(2, 2), Ground);
    PaintRamp(raster, 0, 0, 2, 1, from, to, 1);
    PaintRamp(raster, 0, 1, 1, 1, from, to, 1);  // the middle of both
    QVERIFY(raster.image().pixel(0, 0) == from && raster.image().pixel(1, 0) == to);
    QCOMPARE(raster.image().pixel(0, 1), qRgb(20, 30, 40));
  }

  void pixelRowsKeepTheirBytes() {
    const QImage bitmap = picture({qRgb(1, 2, 3), qRgb(4, 5, 6), qRgb(7, 8, 9), qRgba(9, 9, 9, 0)}, 2);
    QCOMPARE(GetDIBits(bitmap).bytes, QByteArray("\x09\x08\x07\0\0\0\0\0\x03\x02\x01\x06\x05\x04\0\0", 16));
    Raster raster(QSize(6, 4), qRgb(8, 8, 8));
    StretchDIBits(raster, -1, 0, 4, 4, GetDIBits(bitmap));
    const QList<QRgb> expected = {qRgb(1, 2, 3), qRgb(4, 5, 6), qRgb(4, 5, 6), qRgb(8, 8, 8)};
    for (int x = 0; x < 4; ++x) QCOMPARE(raster.image().pixel(x, 1), expected[x]);
  }

  void shapesOfPictures() {
    const QImage half = picture({qRgba(0, 0, 0, 255), qRgba(0, 0, 0, 128), qRgba(0, 0, 0, 0)}, 3);
    Raster raster(QSize(5, 3), Ground);
    paintSilhouette(raster, half, 3, 1, Edge);
    paintSilhouette(raster, half.convertToFormat(QImage::Format_RGB32), 0, 1, Inside);
    tileRect(raster, 1, 2, 4, 3, picture({Edge, Inside}, 2));
    PaintPicture(raster, picture({Inside}, 1), 0, 0, 2, 1);
    raster.Line(2, 0, 4, 2, Edge);  // without its end
    QCOMPARE(letters(raster), (QByteArrayList{"oo#..", "ooo##", ".#o#."}));
  }

  /// A control's pixels are squares at whole scale factors, and smoothed at others.
  void shownOnAScaledScreen() {
    Raster raster(QSize(4, 2), Edge);
    raster.FillRect(1, 0, 2, 2, Inside);
    for (const double scale : {1.0, 1.5, 2.0}) {
      QImage screen = plainPicture(static_cast<int>(4 * scale), static_cast<int>(2 * scale), Ground);
      screen.setDevicePixelRatio(scale);
      QPainter painter(&screen);
      Show(painter, raster);
      const QByteArray row = lettersOf(screen, {{Edge, '#'}, {Inside, 'o'}}).constFirst();
      QCOMPARE(row.contains('?'), scale == 1.5);
    }
  }

  void textStandsInItsRectangle() {
    const QFont font(QStringLiteral("Liberation Sans"), 9);
    const QString text = QStringLiteral("Hog");
    Raster drawn(QSize(300, 40), Ground);
    drawText(drawn, font, text, QRect(20, 10, 200 + TextWidth(font, text), 8), Edge);
    Raster printed(QSize(300, 40), Ground);
    Print(printed, font, text, 120, 10, Edge);
    QVERIFY(printed.image() != drawn.image());  // it is cut at the lower edge
    printed.FillRect(0, 18, 300, 40, Ground);
    QCOMPARE(drawn.image(), printed.image());
  }

  void stretchedPicturesHaveCleanEdges() {
    // Its own size; over the corner; the far end of an enormous one; none.
    for (const QRect& target :
         {QRect(5, 5, 7, 5), QRect(-50, -20, 300, 100), QRect(-32000, 0, 32767, 3), QRect(10, 10, -5, 20)}) {
      Sheet surface;
      surface.drawImageRect(plainPicture(7, 5, Inside), target.x(), target.y(), target.width(), target.height());
      const QRect shown = target.isEmpty() ? QRect() : target & surface.image().rect();
      QCOMPARE(surface.takeDirty(), shown);
      QCOMPARE(inkOf(surface.image()), shown);
      if (!shown.isEmpty()) QVERIFY(inkOf(surface.image().copy(shown), Inside).isNull());
    }
  }

  /// A frame draws only what is different, and is the same picture as one that draws all.
  void framesOfADrag() {
    Sheet framed;
    DrawnFrame last;
    const auto prepared = [](const QImage& image) {
      return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QImage ground = prepared(pictureOf(800, 600, [](int x, int y) { return qRgb(x, y, x + y); }));
    const QImage glass = prepared(pictureOf(90, 60, [](int x, int) { return qRgba(250, 9, x, 100); }));
    const auto draw = [&](Surface& surface, int frame) {
      frame % 7 == 6 ? surface.wipe(Qt::darkBlue) : surface.drawImage(ground, 0, 0);
      for (int i = 0; i < 4; ++i) surface.drawImage(glass, 70 * i + (i == 1 ? 9 * frame : 0), 40 + 9 * i);
      if (frame % 5 == 4) surface.drawImageRect(glass, 300, 200, 333, 222);
      for (const auto& [points, x] : {std::pair{12.F, 30}, std::pair{300.F, 400}}) {
        surface.setPen(
            {x + (frame % 3 == 2 ? -44.5F : 0), 70, frame == 8 ? Qt::red : Qt::white, u"Eurostar Black"_s, points});
        surface.Print(frame == 9 ? u"Wag"_s : u"Tag"_s);
      }
      if (frame % 4 == 3) surface.drawImage(glass, 770, -20);
    };
    for (int frame = 0; frame < 25; ++frame) {
      if (frame == 13) framed.wipe(Qt::green);  // by somebody else
      Sheet whole;
      draw(whole, frame);
      framed.drawFrame(last, [&] { draw(framed, frame); });
      QCOMPARE(framed.image(), whole.image());
      const QRect dirty = framed.takeDirty();
      if (frame == 1) QCOMPARE(dirty, QRect(70, 49, 99, 60));
    }
    framed.drawFrame(last, [&] { draw(framed, 22); });
    framed.takeDirty();
    framed.drawFrame(last, [&] { draw(framed, 22); });
    QVERIFY(framed.takeDirty().isNull());
    framed.putBack(QImage(framed.image()));
    QCOMPARE(framed.takeDirty(), framed.image().rect());
  }

  void sizesInWholePixels() {
    Surface surface;
    const auto widthAt = [&](float points) {
      surface.SetFontSize(points);
      return surface.TextWidth(u"wide words"_s);
    };
    QCOMPARE(widthAt(14), widthAt(14.25F));  // 18.67 and 19 pixels
    QVERIFY(widthAt(13.5F) < widthAt(14));
  }

  void facesOfTheTexts() {
    const auto stands = [](const QString& family, const QString& face, bool black = false) {
      const QFontInfo info(faceFont(face));
      const bool machineHasIt = info.family().compare(face, Qt::CaseInsensitive) == 0;
      return machineHasIt || (info.family() == family && (info.weight() >= QFont::Black) == black);
    };
    QVERIFY(stands(u"DejaVu Sans"_s, u"Eurostar Regular Extended"_s));
    QVERIFY(stands(u"Lato"_s, u"Eurostar Black"_s, true));
    QVERIFY(stands(u"Liberation Sans"_s, u"No such face at all"_s));
    QCOMPARE(drawnFont(QFont(u"Liberation Sans"_s, 9, QFont::Bold)).weight(), QFont::Bold);
  }
};

QTEST_MAIN(DrawingTest)
#include "drawing_test.moc"
