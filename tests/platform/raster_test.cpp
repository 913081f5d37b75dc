#include "platform/raster.h"

#include <functional>

#include <QTest>

#include "platform/ramps.h"
#include "platform/raster_pictures.h"
#include "platform/raster_text.h"
#include "support/row_name.h"

using namespace platform;

namespace {

constexpr QRgb Ground = qRgb(255, 255, 255);
constexpr QRgb Edge = qRgb(10, 20, 30);
constexpr QRgb Inside = qRgb(200, 150, 100);

using Drawing = std::function<void(Raster&)>;

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

QList<int> reds(const Raster& raster, const QPoint& first, const QPoint& step, int count) {
  QList<int> channels;
  for (int i = 0; i < count; ++i) channels << qRed(raster.image().pixel(first + i * step));
  return channels;
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
    const QByteArray all = ".#oooooooooo#.";
    const QByteArrayList oneOff = {".#####.", "#.....#", "#.....#", "#.....#", ".#####.", "......."};
    const auto outline = [](int diameter) {
      return [diameter](Raster& raster) { raster.RoundRect(0, 0, 7, 5, diameter, Edge); };
    };
    const struct {
      const char* name;
      Drawing draw;
      QByteArrayList expected;
    } rows[] = {
        {"rectangle",
         [](Raster& raster) { raster.Rectangle(9, 5, 1, 1, Edge, Inside); },
         {"..........", ".########.", ".#oooooo#.", ".#oooooo#.", ".########.", ".........."}},
        {"round",
         [](Raster& raster) { raster.RoundRect(1, 1, 13, 11, 6, Edge, Inside); },
         {"..............", "...########...", "..#oooooooo#..", all, all, all, all, all, all, "..#oooooooo#..",
          "...########...", ".............."}},
        {"outline of 3", outline(3), oneOff},
        {"outline of 5", outline(5), oneOff},
        {"outline of -5", outline(-5), oneOff},
        {"ellipse of 2",
         [](Raster& raster) { raster.RoundRect(-2, -2, 4, 3, 2, Edge, Inside); },
         {"ooo#..", "ooo#..", "####.."}},
        {"capsule",
         [](Raster& raster) { raster.RoundRect(0, 0, 12, 7, 100, Edge, Inside); },
         {"....####....", ".###oooo###.", ".#oooooooo#.", "#oooooooooo#", ".#oooooooo#.", ".###oooo###.",
          "....####...."}},
        {"lines",
         [](Raster& raster) {
           raster.Line(1, 0, 6, 0, Edge);
           raster.Line(6, 1, 1, 1, Edge);
           raster.Line(0, 2, 0, 4, Edge);
           raster.Line(3, 2, 6, 5, Edge);
           raster.Line(2, 3, 2, 3, Edge);
         },
         {".#####.", "..#####", "#..#...", "#...#..", ".....#.", "......."}},
        {"region",
         [](Raster& raster) { raster.ClipToRoundRect(0, 0, 8, 6, 5); },
         {" ..... ", ".......", ".......", ".......", " ..... ", "       "}},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      Raster raster(QSize(int(row.expected[0].size()), int(row.expected.size())), Ground);
      row.draw(raster);
      QCOMPARE(letters(raster), row.expected);
    }
  }

  void ramps() {
    constexpr QRgb black = qRgb(0, 0, 0);
    constexpr QRgb white = qRgb(255, 255, 255);
    constexpr QPoint across(1, 0);
    constexpr QPoint down(0, 1);
    const auto fill = [](int left, int top, int right, int bottom, int first, int second, Direction direction) {
      return [=](Raster& raster) {
        GradientFill(raster, left, top, right, bottom, qRgb(first, 0, 0), qRgb(second, 0, 0), direction);
      };
    };
    const auto ramp = [](int x, int y, int width, int height, QRgb start, QRgb end, int kind) {
      return [=](Raster& raster) { PaintRamp(raster, x, y, width, height, start, end, kind); };
    };
    const struct {
      const char* name;
      Drawing draw;
      QPoint step;
      QList<int> expected;
    } rows[] = {
        {"doesn't reach its end",
         fill(0, 0, 8, 1, 0, 255, Direction::LeftToRight),
         across,
         {0, 31, 63, 95, 127, 159, 191, 223, 7}},
        {"falls", fill(0, 0, 1, 5, 244, 114, Direction::TopToBottom), down, {244, 218, 192, 166, 140, 7}},
        {"backwards", fill(0, 4, 3, 0, 100, 200, Direction::TopToBottom), down, {200, 175, 150, 125, 7}},
        {"starts outside", fill(-2, 0, 2, 1, 0, 200, Direction::LeftToRight), across, {100, 150, 7}},
        {"reaches its end", ramp(0, 0, 5, 1, black, white, 1), across, {0, 63, 127, 191, 255, 7}},
        {"cut towards zero", ramp(0, 0, 1, 3, qRgb(10, 0, 0), qRgb(5, 0, 0), 3), down, {10, 8, 5, 7}},
        {"one entry", ramp(0, 0, 1, 4, qRgb(201, 0, 0), qRgb(101, 0, 0), 1), down, {150, 150, 150, 150, 7}},
        {"from the top left", ramp(0, -1, 3, 3, black, qRgb(4, 0, 0), 5), across, {1, 2, 3, 7}},
        {"from the bottom left, across", ramp(0, 0, 3, 3, black, qRgb(4, 0, 0), 6), across, {2, 3, 4, 7}},
        {"from the bottom left, down", ramp(0, 0, 3, 3, black, qRgb(4, 0, 0), 6), down, {2, 1, 0, 7}},
        {"no such kind", ramp(0, 0, 2, 2, white, white, 7), across, {0, 0, 7}},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      Raster raster(QSize(12, 12), qRgb(7, 7, 7));
      row.draw(raster);
      QCOMPARE(reds(raster, QPoint(0, 0), row.step, int(row.expected.size())), row.expected);
    }
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
