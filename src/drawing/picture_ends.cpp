#include "drawing/picture_ends.h"

#include "platform/byte_cursor.h"

namespace drawing {

bool isWholePng(QByteArrayView bytes) {
  constexpr qsizetype Mark = 8;
  constexpr quint32 EndChunk = 0x49454E44;
  constexpr int Checksum = 4;
  platform::ByteCursor cursor(bytes, Mark);
  while (cursor.inside()) {
    const quint32 size = cursor.big32();
    const quint32 name = cursor.big32();
    cursor.skip(static_cast<qint64>(size) + Checksum);
    if (name == EndChunk) return cursor.inside();
  }
  return false;
}

}  // namespace drawing
