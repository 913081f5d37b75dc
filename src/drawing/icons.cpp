#include "drawing/icons.h"

#include <algorithm>
#include <vector>

#include "drawing/bitmaps.h"
#include "platform/byte_cursor.h"
#include "platform/little_endian.h"

namespace drawing {

namespace {

constexpr QRgb OpaqueBlack = 0xFF000000;
constexpr QRgb White = 0xFFFFFFFF;
constexpr int LargestSide = 256;
constexpr int MostColors = 256;
constexpr quint32 BitmapHeaderSize = 40;
constexpr qsizetype EntryPlace = 6;
constexpr qsizetype EntrySize = 16;

/// The header of an icon's image.
struct Head {
  int width = 0;
  int height = 0;
  int bits = 0;
  int colors = 0;
};

std::optional<Head> readHead(platform::ByteCursor& cursor) {
  Head head;
  if (cursor.little32() != BitmapHeaderSize) return std::nullopt;
  head.width = static_cast<int>(cursor.little32());
  const int bothHeights = static_cast<int>(cursor.little32());
  head.height = bothHeights / 2;
  cursor.skip(2);
  head.bits = cursor.little16();
  const quint32 compression = cursor.little32();
  cursor.skip(12);
  const quint32 colors = cursor.little32();
  cursor.skip(4);
  const bool fits = head.width > 0 && head.width <= LargestSide && head.height > 0 && head.height <= LargestSide &&
                    bothHeights % 2 == 0 && compression == 0 && colors <= MostColors && cursor.inside();
  constexpr int Depths[] = {1, 4, 8, 24, 32};
  if (!fits || std::find(std::begin(Depths), std::end(Depths), head.bits) == std::end(Depths)) return std::nullopt;
  if (head.bits <= 8) head.colors = colors != 0 ? static_cast<int>(colors) : 1 << head.bits;
  return head;
}

uint indexAt(QByteArrayView row, int x, int bits) {
  const int perByte = 8 / bits;
  const auto byte = static_cast<uchar>(row[x / perByte]);
  return byte >> (8 - bits * (x % perByte + 1)) & ((1U << bits) - 1);
}

QRgb colorAt(QByteArrayView row, int x, int bits, const std::vector<QRgb>& palette) {
  if (bits <= 8) {
    const uint index = indexAt(row, x, bits);
    return index < palette.size() ? palette[index] : OpaqueBlack;
  }
  const auto* pixel = reinterpret_cast<const uchar*>(row.data()) + x * (bits / 8);
  return qRgb(pixel[2], pixel[1], pixel[0]);
}

/// The colours that occur in the picture, sorted.
std::vector<QRgb> colorsOf(const QImage& picture) {
  std::vector<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    colors.insert(colors.end(), row, row + picture.width());
  }
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
  return colors;
}

QByteArray colorRows(const QImage& picture, const std::vector<QRgb>& palette) {
  QByteArray rows(bytesPerRow(picture.width(), 8) * picture.height(), '\0');
  char* row = rows.data();
  for (int y = picture.height(); y-- > 0; row += bytesPerRow(picture.width(), 8)) {
    for (int x = 0; x < picture.width(); ++x) {
      row[x] =
          static_cast<char>(std::lower_bound(palette.begin(), palette.end(), picture.pixel(x, y)) - palette.begin());
    }
  }
  return rows;
}

QByteArray maskRows(const QImage& mask) {
  QByteArray rows(bytesPerRow(mask.width(), 1) * mask.height(), '\0');
  char* row = rows.data();
  for (int y = mask.height(); y-- > 0; row += bytesPerRow(mask.width(), 1)) {
    for (int x = 0; x < mask.width(); ++x) {
      if (mask.pixel(x, y) == White) row[x / 8] = static_cast<char>(static_cast<uchar>(row[x / 8]) | 0x80U >> x % 8);
    }
  }
  return rows;
}

}  // namespace

std::optional<IconBitmaps> readIcon(QByteArrayView file) {
  platform::ByteCursor directory(file);
  const bool isIcon = directory.little16() == 0 && directory.little16() == 1 && directory.little16() > 0;
  directory.skip(EntrySize - 4);
  const quint32 place = directory.little32();
  if (!isIcon || !directory.inside()) return std::nullopt;
  platform::ByteCursor cursor(file, place);
  const std::optional<Head> head = readHead(cursor);
  if (!head) return std::nullopt;
  std::vector<QRgb> palette;
  palette.reserve(head->colors);
  for (int i = 0; i < head->colors; ++i) palette.push_back(OpaqueBlack | (cursor.little32() & RGB_MASK));
  const qint64 colorSize = bytesPerRow(head->width, head->bits);
  const qint64 maskSize = bytesPerRow(head->width, 1);
  const QByteArrayView colors = cursor.take(colorSize * head->height);
  const QByteArrayView masks = cursor.take(maskSize * head->height);
  if (!cursor.inside()) return std::nullopt;
  const QSize size(head->width, head->height);
  IconBitmaps icon{QImage(size, QImage::Format_RGB32), QImage(size, QImage::Format_RGB32)};
  for (int y = 0; y < head->height; ++y) {
    const int stored = head->height - 1 - y;  // rows are stored from bottom to top
    const QByteArrayView colorRow = colors.sliced(stored * colorSize, colorSize);
    const QByteArrayView maskRow = masks.sliced(stored * maskSize, maskSize);
    for (int x = 0; x < head->width; ++x) {
      const bool isClear = indexAt(maskRow, x, 1) != 0;
      icon.mask.setPixel(x, y, isClear ? White : OpaqueBlack);
      icon.Color.setPixel(x, y, isClear ? OpaqueBlack : colorAt(colorRow, x, head->bits, palette));
    }
  }
  return icon;
}

IconBitmaps bitmapsOf(const QImage& picture) {
  const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
  IconBitmaps icon{QImage(source.size(), QImage::Format_RGB32), QImage(source.size(), QImage::Format_RGB32)};
  for (int y = 0; y < source.height(); ++y) {
    for (int x = 0; x < source.width(); ++x) {
      const QRgb pixel = source.pixel(x, y);
      const bool isClear = !isSeen(pixel);
      icon.mask.setPixel(x, y, isClear ? White : OpaqueBlack);
      icon.Color.setPixel(x, y, isClear ? OpaqueBlack : pixel | OpaqueBlack);
    }
  }
  return icon;
}

std::optional<QByteArray> writeIcon(const QImage& picture) {
  const IconBitmaps icon = bitmapsOf(picture);
  std::vector<QRgb> palette = colorsOf(icon.Color);
  const bool fits = picture.width() <= LargestSide && picture.height() <= LargestSide && palette.size() <= MostColors;
  if (picture.isNull() || !fits) return std::nullopt;
  const QByteArray pixels = colorRows(icon.Color, palette) + maskRows(icon.mask);
  palette.resize(MostColors, OpaqueBlack);
  QByteArray file;
  for (const int number : {0, 1, 1}) platform::appendLittle<quint16>(file, number);  // an icon, one image
  for (const int number : {picture.width(), picture.height(), 0, 0}) platform::appendLittle<quint8>(file, number);
  for (const int number : {1, 8}) platform::appendLittle<quint16>(file, number);  // planes, bits
  platform::appendLittle<quint32>(file, BitmapHeaderSize + 4 * MostColors + pixels.size());
  platform::appendLittle<quint32>(file, EntryPlace + EntrySize);
  platform::appendLittle<quint32>(file, BitmapHeaderSize);
  platform::appendLittle<qint32>(file, picture.width());
  platform::appendLittle<qint32>(file, 2 * picture.height());
  for (const int number : {1, 8}) platform::appendLittle<quint16>(file, number);
  platform::appendLittle<quint32>(file, 0);  // uncompressed
  platform::appendLittle<quint32>(file, pixels.size());
  for (const int number : {0, 0, 0, 0}) platform::appendLittle<quint32>(file, number);
  for (const QRgb color : palette) platform::appendLittle<quint32>(file, color & RGB_MASK);
  return file + pixels;
}

}  // namespace drawing
