#include "platform/picture_ends.h"

#include "platform/byte_cursor.h"

namespace platform {

bool IsWholeJpeg(QByteArrayView bytes) {
  enum Marker : quint8 { Stuffed = 0x00, Standalone = 0x01, Restart0 = 0xD0, Start = 0xD8, End = 0xD9, Fill = 0xFF };
  ByteCursor cursor(bytes);
  while (cursor.inside()) {
    // Between segments lies coded picture data, in which the byte before a marker can't stand alone.
    while (cursor.inside() && cursor.byte() != Fill) {
    }
    quint8 marker = cursor.byte();
    while (cursor.inside() && marker == Fill) marker = cursor.byte();
    if (marker == End) return cursor.inside();
    const bool bare = marker == Stuffed || marker == Standalone || (marker >= Restart0 && marker <= Start);
    if (!bare) cursor.skip(cursor.big16() - 2);
  }
  return false;
}

bool IsWholePng(QByteArrayView bytes) {
  constexpr qsizetype Mark = 8;
  constexpr quint32 EndChunk = 0x49454E44;
  constexpr int Checksum = 4;
  ByteCursor cursor(bytes, Mark);
  while (cursor.inside()) {
    const quint32 size = cursor.big32();
    const quint32 name = cursor.big32();
    cursor.skip(qint64(size) + Checksum);
    if (name == EndChunk) return cursor.inside();
  }
  return false;
}

}  // namespace platform
