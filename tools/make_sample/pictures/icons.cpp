#include <iterator>

#include <QDataStream>
#include <QIODevice>

#include "drawing/canvas.h"
#include "pictures/assets.h"

namespace sample {

namespace {

constexpr int Size = 16;

struct Icon {
  const char* file;
  const char* rows[Size];
};

struct Ink {
  char letter;
  QRgb color;
};

constexpr Ink Inks[] = {
    {'k', 0xff000000}, {'d', 0xff404040}, {'g', 0xff808080}, {'s', 0xffc0c0c0}, {'w', 0xffffffff}, {'y', 0xffffd75e},
    {'o', 0xffe0a020}, {'n', 0xff8a5a10}, {'l', 0xfffff0b0}, {'b', 0xff2858b8}, {'c', 0xff6c9cf0}, {'i', 0xff10306c},
    {'r', 0xffd83030}, {'v', 0xff8c1414}, {'e', 0xff3ca03c}, {'p', 0xffc87c40}, {'q', 0xff7c4818}, {'t', 0xffe8b078},
};

constexpr Icon Icons[] = {
    {"open.png",
     {"................", "..........kkk...", ".........k...k.k", "..............kk", ".nnnn........kkk",
      "nyyyyn..........", "nylylynnnnnnn...", "nlylylylylyyn...", "nylylylylylyn...", "nlylynnnnnnnnnnn",
      "nylynoyyyyyyyyon", "nlynoyyyyyyyyon.", "nynoyyyyyyyyon..", "nnooooooooooon..", "nnnnnnnnnnnnn...",
      "................"}},
    {"save.png",
     {"................", ".iiiiiiiiiiiiii.", ".ibwwwwwwwwwbci.", ".ibwrrrrrrrwbbi.", ".ibwwwwwwwwwbci.",
      ".ibwgggggggwbbi.", ".ibwwwwwwwwwbbi.", ".ibwggggggwwbbi.", ".ibbwwwwwwwbbbi.", ".ibbbbbbbbbbbbi.",
      ".ibbdddddddsbbi.", ".ibbddssdddsbbi.", ".ibbddssdddsbbi.", ".iibddssdddsbbi.", "..iiiiiiiiiiiii.",
      "................"}},
    {"close.png",
     {"................", "................", "...vv......vv...", "..vrrv....vrrv..", "..vrrrv..vrrrv..",
      "...vrrrvvrrrv...", "....vrrrrrrv....", ".....vrrrrv.....", ".....vrrrrv.....", "....vrrrrrrv....",
      "...vrrrvvrrrv...", "..vrrrv..vrrrv..", "..vrrv....vrrv..", "...vv......vv...", "................",
      "................"}},
    {"background.png",
     {"................", "qqqqqqqqqqqqqqqq", "qttttttttttttttq", "qtqqqqqqqqqqqqpq", "qtqccccccccccqpq",
      "qtqcccccccyycqpq", "qtqcccccccyycqpq", "qtqccccccccccqpq", "qtqccceccccccqpq", "qtqcceeecceccqpq",
      "qtqceeeeeeeecqpq", "qtqeeeeeeeeeeqpq", "qtqqqqqqqqqqqqpq", "qppppppppppppppq", "qqqqqqqqqqqqqqqq",
      "................"}},
    {"plus.png",
     {"................", "................", "................", ".......kk.......", ".......kk.......",
      ".......kk.......", ".......kk.......", "...kkkkkkkkkk...", "...kkkkkkkkkk...", ".......kk.......",
      ".......kk.......", ".......kk.......", ".......kk.......", "................", "................",
      "................"}},
    {"minus.png",
     {"................", "................", "................", "................", "................",
      "................", "................", "...kkkkkkkkkk...", "...kkkkkkkkkk...", "................",
      "................", "................", "................", "................", "................",
      "................"}},
    {"folder.png",
     {"................", "................", "..nnnn..........", ".nyyyyn.........", ".nylylynnnnnn...",
      ".nlylylylylyn...", ".nylylylylyln...", ".nlylnnnnnnnnnn.", ".nylnoyyyyyyyyn.", ".nlynoyyyyyyyn..",
      ".nynoyyyyyyyyn..", ".nynoyyyyyyyn...", ".nnoooooooooon..", ".nnnnnnnnnnnn...", "................",
      "................"}},
};

QImage iconImage(const Icon& icon) {
  QImage image(Size, Size, QImage::Format_Indexed8);
  image.setColorTable({0});
  for (const Ink& ink : Inks) image.setColorTable(image.colorTable() + QList<QRgb>{ink.color});
  for (int y = 0; y < Size; ++y) {
    for (int x = 0; x < Size; ++x) {
      unsigned index = 0;
      for (unsigned i = 0; i < std::size(Inks); ++i) {
        if (Inks[i].letter == icon.rows[y][x]) index = i + 1;
      }
      image.setPixel(x, y, index);
    }
  }
  return image;
}

/// A microphone before a stage, on a round tile.
QImage programIcon(int pixels) {
  Canvas canvas(pixels, pixels, 64, 64);
  canvas.fill(roundBox(QRectF(2, 2, 60, 60), 13),
              [](double, double y) { return mix(rgb(0x5a3ca8), rgb(0xe0705c), y / 64); });
  canvas.fill(area({{12, 2}, {26, 2}, {50, 62}, {22, 62}}), rgb(0xffe0a8, 0.28), 2);
  canvas.fill(outline(roundBox(QRectF(2.5, 2.5, 59, 59), 12.5), 1.6), rgb(0x2a1650));
  canvas.fill(line({24, 42}, {14, 54}, 3.4), rgb(0x241a3c));
  canvas.fill(area({{21, 31}, {33, 43}, {22, 46}, {18, 42}}, 2), rgb(0x3c3058));
  canvas.fill(disc({36, 28}, 13.5), [](double x, double y) {
    const bool wire = static_cast<int>(x + y) % 5 == 0 || static_cast<int>(x - y + 64) % 5 == 0;
    const Color ball = mix(rgb(0xf4f0fa), rgb(0x8c84a0), (x + y - 44) / 44);
    return wire ? mix(ball, rgb(0x504868), 0.45) : ball;
  });
  canvas.fill(line({24.5, 26}, {38, 39.5}, 2.4), rgb(0xffc04c));
  constexpr unsigned Swatches[] = {0x47aff7, 0xf74747, 0x3fbf3f, 0xffdd00};
  int place = 0;
  for (const unsigned swatch : Swatches) canvas.fill(disc({31.0 + 8 * place++, 54}, 3.2), rgb(swatch));
  return canvas.image();
}

void writeIcons(const Output& output) {
  for (const Icon& icon : Icons) output.writePicture(icon.file, iconImage(icon));
  output.writePicture("app.png", programIcon(64));
}

constexpr int IconSizes[] = {16, 32, 48, 64, 128, 256};

/// All sizes of the program's icon in one file, as Windows has them: a table, then the pictures as PNG.
QByteArray iconFile() {
  constexpr qsizetype HeadSize = 6;
  constexpr qsizetype RowSize = 16;
  constexpr int Count = std::size(IconSizes);
  QByteArray pictures;
  QByteArray file;
  QDataStream table(&file, QIODevice::WriteOnly);
  table.setByteOrder(QDataStream::LittleEndian);
  table << quint16(0) << quint16(1) << quint16(Count);
  for (const int pixels : IconSizes) {
    const QByteArray picture = encodePicture(programIcon(pixels), "png");
    const auto side = static_cast<quint8>(pixels);  // 256 is 0 there
    table << side << side << quint8(0) << quint8(0) << quint16(1) << quint16(32) << quint32(picture.size())
          << quint32(HeadSize + Count * RowSize + pictures.size());
    pictures += picture;
  }
  return file + pictures;
}

}  // namespace

void writeProgramIcons(const Output& output) {
  for (const int pixels : IconSizes) output.writePicture(std::to_string(pixels) + ".png", programIcon(pixels));
  output.write("cantorama-theme-edit.ico", iconFile());
}

void writeAssets(const Output& output) {
  writeIcons(output);
  output.writePicture("start.jpg", startPicture(), 88);
}

}  // namespace sample
