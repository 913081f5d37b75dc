#include "platform/raster.h"

#include <functional>

#include <QTest>

#include "platform/ramps.h"
#include "platform/raster_pictures.h"
#include "platform/raster_text.h"

using namespace platform;

namespace {

constexpr QRgb Ground = qRgb(255, 255, 255);
constexpr QRgb Edge = qRgb(10, 20, 30);
constexpr QRgb Inside = qRgb(200, 150, 100);
constexpr QRgb Untouched = qRgb(7, 7, 7);

/// A line of letters for each row: # edge, o inside, . untouched, a blank for a transparent pixel.
QByteArrayList letters(const Raster& raster) {
  QByteArrayList rows;
  for (int y = 0; y < raster.Height(); ++y) {
    QByteArray row;
    for (int x = 0; x < raster.Width(); ++x) {
      const QRgb pixel = raster.image().pixel(x, y);
      row += pixel == Ground ? '.' : pixel == Edge ? '#' : pixel == Inside ? 'o' : pixel == 0 ? ' ' : '?';
    }
    rows << row;
  }
  return rows;
}

QByteArrayList drawn(const std::function<void(Raster&)>& draw, int width, int height) {
  Raster raster(QSize(width, height), Ground);
  draw(raster);
  return letters(raster);
}

QList<int> reds(const Raster& raster, const QPoint& first, const QPoint& step, int count) {
  QList<int> channels;
  for (int i = 0; i < count; ++i) channels << qRed(raster.image().pixel(first + i * step));
  return channels;
}

/// The levels from the top left pixel on as far as a ramp reaches.
QList<int> levels(const Raster& raster, Direction direction) {
  const QPoint step = direction == Direction::LeftToRight ? QPoint(1, 0) : QPoint(0, 1);
  const QList<int> all = reds(raster, QPoint(0, 0), step, raster.Width());
  return all.first(all.indexOf(qRed(Untouched)));
}

QImage picture(const QList<QRgb>& pixels, int width) {
  QImage image(width, int(pixels.size()) / width, QImage::Format_ARGB32);
  for (int i = 0; i < pixels.size(); ++i) image.setPixel(i % width, i / width, pixels[i]);
  return image;
}

}  // namespace

class RasterTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void shapes() {
    QCOMPARE(drawn([](Raster& raster) { raster.Rectangle(9, 5, 1, 1, Edge, Inside); }, 10, 6),
             (QByteArrayList{"..........", ".########.", ".#oooooo#.", ".#oooooo#.", ".########.", ".........."}));
    const QByteArray all = ".#oooooooooo#.";
    QCOMPARE(drawn([](Raster& raster) { raster.RoundRect(1, 1, 13, 11, 6, Edge, Inside); }, 14, 12),
             (QByteArrayList{"..............", "...########...", "..#oooooooo#..", all, all, all, all, all, all,
                             "..#oooooooo#..", "...########...", ".............."}));
    for (const int diameter : {3, 4, 5, -5}) {
      QCOMPARE(drawn([=](Raster& raster) { raster.RoundRect(0, 0, 7, 5, diameter, Edge); }, 7, 6),
               (QByteArrayList{".#####.", "#.....#", "#.....#", "#.....#", ".#####.", "......."}));
    }
    QCOMPARE(drawn([](Raster& raster) { raster.RoundRect(-2, -2, 4, 3, 2, Edge, Inside); }, 6, 3),
             (QByteArrayList{"ooo#..", "ooo#..", "####.."}));
    QCOMPARE(drawn([](Raster& raster) { raster.RoundRect(0, 0, 12, 7, 100, Edge, Inside); }, 12, 7),
             (QByteArrayList{"....####....", ".###oooo###.", ".#oooooooo#.", "#oooooooooo#", ".#oooooooo#.",
                             ".###oooo###.", "....####...."}));
    const auto lines = [](Raster& raster) {
      raster.Line(1, 0, 6, 0, Edge);
      raster.Line(6, 1, 1, 1, Edge);
      raster.Line(0, 2, 0, 4, Edge);
      raster.Line(3, 2, 6, 5, Edge);
      raster.Line(2, 3, 2, 3, Edge);
    };
    QCOMPARE(drawn(lines, 7, 6), (QByteArrayList{".#####.", "..#####", "#..#...", "#...#..", ".....#.", "......."}));
    QCOMPARE(drawn([](Raster& raster) { raster.ClipToRoundRect(0, 0, 8, 6, 5); }, 7, 6),
             (QByteArrayList{" ..... ", ".......", ".......", ".......", " ..... ", "       "}));
  }

  void ramps() {
    using Levels = QList<int>;
    constexpr auto across = Direction::LeftToRight;
    constexpr auto down = Direction::TopToBottom;
    const auto filled = [](int left, int top, int right, int bottom, int first, int second, Direction direction) {
      Raster raster(QSize(12, 12), Untouched);
      GradientFill(raster, left, top, right, bottom, qRgb(first, 0, 0), qRgb(second, 0, 0), direction);
      return levels(raster, direction);
    };
    QCOMPARE(filled(0, 0, 8, 1, 0, 255, across), (Levels{0, 31, 63, 95, 127, 159, 191, 223}));
    QCOMPARE(filled(0, 0, 1, 5, 244, 114, down), (Levels{244, 218, 192, 166, 140}));
    QCOMPARE(filled(0, 4, 3, 0, 100, 200, down), (Levels{200, 175, 150, 125}));
    QCOMPARE(filled(-2, 0, 2, 1, 0, 200, across), (Levels{100, 150}));
    const auto ramp = [](const QRect& area, int start, int end, int kind, Direction direction) {
      Raster raster(QSize(12, 12), Untouched);
      PaintRamp(raster, area.x(), area.y(), area.width(), area.height(), qRgb(start, 0, 0), qRgb(end, 0, 0), kind);
      return levels(raster, direction);
    };
    QCOMPARE(ramp({0, 0, 5, 1}, 0, 255, 1, across), (Levels{0, 63, 127, 191, 255}));
    QCOMPARE(ramp({0, 0, 1, 3}, 10, 5, 3, down), (Levels{10, 8, 5}));
    QCOMPARE(ramp({0, 0, 1, 4}, 201, 101, 1, down), (Levels{150, 150, 150, 150}));
    QCOMPARE(ramp({0, -1, 3, 3}, 0, 4, 5, across), (Levels{1, 2, 3}));
    QCOMPARE(ramp({0, 0, 3, 3}, 0, 4, 6, across), (Levels{2, 3, 4}));
    QCOMPARE(ramp({0, 0, 3, 3}, 0, 4, 6, down), (Levels{2, 1, 0}));
    QCOMPARE(ramp({0, 0, 2, 2}, 255, 255, 0, across), (Levels{0, 0}));
  }

  void pixelRowsKeepTheirBytes() {
    const QImage bitmap = picture({qRgb(1, 2, 3), qRgb(4, 5, 6), qRgb(7, 8, 9), qRgba(9, 9, 9, 0)}, 2);
    const PixelRows rows = GetDIBits(bitmap);
    QCOMPARE(rows.Bytes, QByteArray("\x09\x08\x07\0\0\0\0\0\x03\x02\x01\x06\x05\x04\0\0", 16));
    Raster raster(QSize(6, 4), qRgb(8, 8, 8));
    StretchDIBits(raster, -1, 0, 4, 4, rows);
    QCOMPARE(reds(raster, QPoint(0, 1), QPoint(1, 0), 4), (QList<int>{1, 4, 4, 8}));
    QCOMPARE(reds(raster, QPoint(0, 3), QPoint(1, 0), 4), (QList<int>{7, 0, 0, 8}));
    Raster masked(QSize(2, 1), qRgb(0xF0, 0xF0, 0xF0));
    StretchDIBits(masked, 0, 0, 2, 1, GetDIBits(picture({Ground, 0xFF000000U}, 2)), RasterOperation::And);
    StretchDIBits(masked, 0, 0, 2, 1, GetDIBits(picture({0xFF000000U, qRgb(9, 9, 9)}, 2)), RasterOperation::Or);
    QCOMPARE(reds(masked, QPoint(0, 0), QPoint(1, 0), 2), (QList<int>{0xF0, 9}));
  }

  void picturesAndTheirShapes() {
    const QImage half = picture({qRgba(0, 0, 0, 255), qRgba(0, 0, 0, 128), qRgba(0, 0, 0, 0)}, 3);
    Raster raster(QSize(5, 3), Ground);
    PaintPicture(raster, half, -1, 0);
    QCOMPARE(reds(raster, QPoint(0, 0), QPoint(1, 0), 3), (QList<int>{127, 255, 255}));
    PaintSilhouette(raster, half, 3, 1, Edge);
    PaintSilhouette(raster, half.convertToFormat(QImage::Format_RGB32), 0, 1, Inside);
    TileRect(raster, 1, 2, 4, 3, picture({Edge, Inside}, 2));
    QCOMPARE(letters(raster).mid(1), (QByteArrayList{"ooo##", ".#o#."}));
  }

  void textStandsInItsRectangle() {
    const QFont font(QStringLiteral("Liberation Sans"), 9);
    const QString text = QStringLiteral("Hog");
    for (const auto& [align, left] :
         {std::pair(TextAlign::Left, 20), std::pair(TextAlign::Center, 120), std::pair(TextAlign::Right, 220)}) {
      Raster drawn(QSize(300, 40), Ground);
      DrawText(drawn, font, text, QRect(20, 10, 200 + TextWidth(font, text), 8), Edge, align);
      Raster printed(QSize(300, 40), Ground);
      Print(printed, font, text, left, 10, Edge);
      QVERIFY(printed.image() != drawn.image());  // it is cut at the lower edge
      printed.FillRect(0, 18, 300, 40, Ground);
      QCOMPARE(drawn.image(), printed.image());
    }
  }
};

QTEST_MAIN(RasterTest)
#include "raster_test.moc"
