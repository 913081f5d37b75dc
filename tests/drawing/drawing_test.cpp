#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include "drawing/fonts.h"
#include "drawing/icons.h"
#include "drawing/ramps.h"
#include "drawing/raster_pictures.h"
#include "drawing/raster_text.h"
#include "drawing/surface.h"
#include "support/pictures.h"
#include "support/results.h"

using namespace drawing;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Ground = qRgb(255, 255, 255);
constexpr QRgb Edge = qRgb(10, 20, 30);
constexpr QRgb Inside = qRgb(200, 150, 100);

/// A picture of three by two: seen, half seen and unseen pixels.
const QImage Tile = pictureOf(3, 2, [](int x, int y) {
  return qRgba(0x30 + 0x22 * x + 0x40 * y, 90 * x, 200 - 99 * y, std::array{255, 127, 0, 255, 128, 255}.at(x + 3 * y));
});

const PixelRows Bits = GetDIBits(Tile);
using Mode = RasterOperation;
constexpr QRgb From = qRgb(10, 241, 99), To = qRgb(251, 20, 99);

/// The raster's routines, by the names that rows call them, with their numbers.
using Numbers = QList<int>;
const QHash<QString, void (*)(Raster& to, const Numbers& n)> Routines{
    {u"line"_s, [](Raster& to, const Numbers& n) { to.Line(n[0], n[1], n[2], n[3], Edge); }},
    {u"fill"_s, [](Raster& to, const Numbers& n) { to.FillRect(n[0], n[1], n[2], n[3], Inside); }},
    {u"outline"_s, [](Raster& to, const Numbers& n) { to.Rectangle(n[0], n[1], n[2], n[3], Edge); }},
    {u"box"_s, [](Raster& to, const Numbers& n) { to.RoundRect(n[0], n[1], n[2], n[3], n[4], Edge, Inside); }},
    {u"clip"_s, [](Raster& to, const Numbers& n) { to.clipToRoundRect(n[0], n[1], n[2], n[3], n[4]); }},
    {u"tile"_s, [](Raster& to, const Numbers& n) { tileRect(to, n[0], n[1], n[2], n[3], Tile); }},
    {u"paint"_s, [](Raster& to, const Numbers& n) { PaintPicture(to, Tile, n[0], n[1]); }},
    {u"scale"_s, [](Raster& to, const Numbers& n) { PaintPicture(to, Tile, n[0], n[1], n[2], n[3]); }},
    {u"shape"_s, [](Raster& to, const Numbers& n) { paintSilhouette(to, Tile, n[0], n[1], Edge); }},
    {u"bits"_s, [](Raster& to, const Numbers& n) { StretchDIBits(to, n[0], n[1], n[2], n[3], Bits, Mode(n[4])); }},
    {u"gradient"_s,
     [](Raster& to, const Numbers& n) { GradientFill(to, n[0], n[1], n[2], n[3], From, To, Direction(n[4])); }},
    {u"ramp"_s, [](Raster& to, const Numbers& n) { PaintRamp(to, n[0], n[1], n[2], n[3], From, To, n[4]); }},
};

QString sumOf(const QImage& image) {
  return u'#' + QString::number(qChecksum({image.constBits(), image.sizeInBytes()}), 16);
}

QString told(const QRect& box) {
  return u" %1,%2,%3,%4"_s.arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
}

/// The pixels row by row: "." the ground, "-" a clear one, else the red in sixteenths. Then the sum of all bits.
QString told(const QImage& image) {
  QString rows;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    const QRgb pixel = image.pixel(i % image.width(), i / image.width());
    if (i % image.width() == 0 && i > 0) rows += u'/';
    rows += pixel == Ground ? u"."_s : qAlpha(pixel) == 0 ? u"-"_s : QString::number(qRed(pixel) / 16, 16);
  }
  return rows + sumOf(image);
}

/// An icon's picture and mask, and of how many cuts of its file there is one.
QString iconOf(const QByteArray& file) {
  const auto icon = readIcon(file);
  int cuts = 0;
  for (qsizetype size = 0; size < file.size(); ++size) cuts += readIcon(file.first(size)) ? 1 : 0;
  return (icon ? told(icon->Color) + u' ' + told(icon->mask) : u"none"_s) + u", %1"_s.arg(cuts);
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
  /// Routines one after the other on a raster of 12 x 7.
  void shapes() {
    compareRows(u"shapes.txt"_s, [](const QString& row) {
      Raster raster(QSize(12, 7), Ground);
      for (const QString& step : row.split(u", "_s)) {
        Numbers numbers;
        for (const QString& number : step.split(u' ').sliced(1)) numbers += number.toInt();
        Routines[step.section(u' ', 0, 0)](raster, numbers);
      }
      return told(raster.image());
    });
    QCOMPARE(Bits.bytes.toHex(), "650070655a9265b4b4000000c80030c85a52000000000000");
  }

  /// The rows of a picture: a letter is a pixel of that colour, ".", "h" and "s" one that is clear, half clear and just
  /// seen. The bytes of its icon, ".." being very many zeros, and what is read of it again.
  void writtenIcons() {
    compareRows(u"icons.txt"_s, [](const QString& row) {
      const QStringList rows = row.split(u'/');
      const auto colorAt = [&](int x, int y) {
        const ushort letter = rows[y][x].unicode();
        return letter == '.' ? 0
                             : QRgb(letter) << 4 | (letter == 'h'   ? 0x7F000000
                                                    : letter == 's' ? 0x80000000
                                                                    : 0xFF000000);
      };
      const auto file = writeIcon(pictureOf(int(rows[0].size()), int(rows.size()), colorAt));
      if (!file) return u"none"_s;
      return QString::fromLatin1(file->toHex()).replace(QRegularExpression(u"(00){64,}"_s), u".."_s) + u' ' +
             iconOf(*file);
    });
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

  /// "family|size x y width height|text", a size in pixels being negative: how wide and high the text is, and where its
  /// ink is, with a sum of all bits: printed at the place, drawn in the rectangle, and printed on the surface there.
  void texts() {
    compareRows(u"texts.txt"_s, [](const QString& row) {
      const QStringList parts = row.split(u'|');
      QList<double> n;
      for (const QString& number : parts[1].split(u' ')) n += number.toDouble();
      QFont font = drawnFont(QFont(parts[0]));
      n[0] < 0 ? font.setPixelSize(int(-n[0])) : font.setPointSizeF(n[0]);
      Raster printed(QSize(120, 40), Ground), drawn(QSize(120, 40), Ground);
      Print(printed, font, parts[2], int(n[1]), int(n[2]), Edge);
      drawText(drawn, font, parts[2], QRectF(n[1], n[2], n[3], n[4]).toRect(), Edge);
      Sheet sheet;
      sheet.setPen({float(n[1]), float(n[2]), QColor(Edge), parts[0], float(n[0])});
      sheet.Print(parts[2]);
      QString all = u"%1x%2"_s.arg(TextWidth(font, parts[2])).arg(TextHeight(font));
      for (const QImage& image : {printed.image(), drawn.image(), sheet.image()})
        all += told(inkOf(image)) + sumOf(image);
      return all + u" %1x%2"_s.arg(sheet.TextWidth(parts[2])).arg(sheet.TextHeight(parts[2])) + told(sheet.takeDirty());
    });
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
    const QImage smoke = prepared(pictureOf(90, 60, [](int x, int) { return qRgba(9, x, 250, 100); }));
    const auto draw = [&](Surface& surface, int frame) {
      frame % 7 == 6 ? surface.wipe(Qt::darkBlue) : surface.drawImage(ground, 0, 0);
      for (int i = 0; i < 4; ++i)
        surface.drawImage(i == 2 && frame % 6 == 5 ? smoke : glass, 70 * i + (i == 1 ? 9 * frame : 0), 40 + 9 * i);
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
    // A frame of more pictures than it may hold is drawn at once.
    for (int i = 0; i < 2; ++i) {
      framed.drawFrame(last, [&] {
        for (int picture = 0; picture < 80; ++picture) framed.drawImage(ground, 0, 0);
      });
      QCOMPARE(framed.takeDirty(), framed.image().rect());
    }
    framed.putBack(QImage(framed.image()));
    QCOMPARE(framed.takeDirty(), framed.image().rect());
  }
};

QTEST_MAIN(DrawingTest)
#include "drawing_test.moc"
