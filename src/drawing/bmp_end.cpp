#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "drawing/bitmaps.h"
#include "drawing/picture_ends.h"
#include "platform/byte_cursor.h"

namespace drawing {

namespace {

constexpr qint64 PlaceOfOffset = 10;
constexpr qint64 FileHeaderSize = 14;
constexpr quint32 OldHeaderSize = 12;
constexpr quint32 HeaderSizes[] = {OldHeaderSize, 40, 64, 108, 124};
enum Compression : quint32 { Plain = 0, Runs8 = 1, Runs4 = 2 };

/// Whether run-length coded pixels fill every row of the picture and finish with the end mark.
bool runsFill(platform::ByteCursor cursor, bool fourBits, qint64 width, qint64 height) {
  enum Escape : quint8 { EndOfLine, EndOfPicture, Move };
  qint64 x = 0;
  qint64 rows = 0;
  while (cursor.inside()) {
    const quint8 run = cursor.byte();
    const quint8 code = cursor.byte();
    if (run > 0) {
      x += run;
    } else if (code > Move) {
      const int size = fourBits ? (code + 1) / 2 : code;
      cursor.skip(size + size % 2);
      x += code;
    } else {
      const bool filled = x >= width;
      if (code == EndOfPicture) return cursor.inside() && rows + (filled ? 1 : 0) >= height;
      if (code == Move || !filled) return false;
      ++rows;
      x = 0;
    }
  }
  return false;
}

}  // namespace

bool isWholeBmp(QByteArrayView bytes) {
  platform::ByteCursor cursor(bytes, PlaceOfOffset);
  const qint64 offset = cursor.little32();
  const quint32 header = cursor.little32();
  if (std::find(std::begin(HeaderSizes), std::end(HeaderSizes), header) == std::end(HeaderSizes)) return false;
  const bool old = header == OldHeaderSize;
  const auto side = [&]() -> qint64 {
    if (old) return static_cast<qint16>(cursor.little16());
    return static_cast<qint32>(cursor.little32());
  };
  const qint64 width = side();
  const qint64 height = std::abs(side());
  cursor.skip(2);
  const qint64 bits = cursor.little16();
  const quint32 compression = old ? static_cast<quint32>(Plain) : cursor.little32();
  cursor.skip(old ? 0 : 12);
  const quint32 listed = old ? 0 : cursor.little32();
  if (!cursor.inside() || width <= 0 || height <= 0) return false;

  // The pixels can't begin before the end of the header and its colours, whatever the offset says.
  const qint64 colors = bits > 8 ? 0 : listed > 0 ? listed : 1 << bits;
  const qint64 pixels = std::max<qint64>(offset, FileHeaderSize + header + colors * (old ? 3 : 4));
  if (compression == Runs8 || compression == Runs4) {
    return runsFill(platform::ByteCursor(bytes, pixels), compression == Runs4, width, height);
  }
  const qint64 rowBytes = bytesPerRow(width, bits);
  return bytes.size() >= pixels && (bytes.size() - pixels) / height >= rowBytes;
}

}  // namespace drawing
