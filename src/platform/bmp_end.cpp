#include <cstdlib>

#include "platform/byte_cursor.h"
#include "platform/picture_ends.h"

namespace platform {

namespace {

constexpr qint64 PlaceOfOffset = 10;
constexpr quint32 OldHeaderSize = 12;
enum Compression : quint32 { Plain = 0, Runs8 = 1, Runs4 = 2 };

/// Whether the runs fill every row of the picture and close with their end mark.
bool runsFill(ByteCursor cursor, bool fourBits, qint64 width, qint64 height) {
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

bool IsWholeBmp(QByteArrayView bytes) {
  ByteCursor cursor(bytes, PlaceOfOffset);
  const qint64 offset = cursor.little32();
  const bool old = cursor.little32() == OldHeaderSize;
  const qint64 width = old ? cursor.little16() : qint32(cursor.little32());
  const qint64 height = old ? cursor.little16() : std::abs(qint64(qint32(cursor.little32())));
  cursor.skip(2);
  const qint64 bits = cursor.little16();
  const quint32 compression = old ? quint32(Plain) : cursor.little32();
  if (!cursor.inside() || width <= 0 || height <= 0) return false;
  if (compression == Runs8 || compression == Runs4) {
    return runsFill(ByteCursor(bytes, offset), compression == Runs4, width, height);
  }
  const qint64 rowBytes = (width * bits + 31) / 32 * 4;
  return bytes.size() >= offset && (bytes.size() - offset) / height >= rowBytes;
}

}  // namespace platform
