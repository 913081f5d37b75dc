#include <array>

#include <QByteArray>

#include "platform/byte_cursor.h"
#include "platform/picture_ends.h"

namespace platform {

namespace {

constexpr int LargestCodeBits = 12;

/// Joins data blocks, each with its length in front, up to the empty one that ends them.
QByteArray takeBlocks(ByteCursor& cursor) {
  QByteArray data;
  for (int size = cursor.byte(); size != 0 && cursor.inside(); size = cursor.byte()) data += cursor.take(size);
  return data;
}

void skipColors(ByteCursor& cursor, quint8 flags) {
  constexpr quint8 HasTable = 0x80;
  if (flags & HasTable) cursor.skip(3 << ((flags & 7) + 1));
}

/// Whether the compressed codes stand for as many pixels as wanted. Only the length of each code's string is kept.
bool codesFill(const QByteArray& data, int rootBits, qint64 wanted) {
  if (rootBits < 1 || rootBits >= LargestCodeBits) return false;
  std::array<qint64, 1 << LargestCodeBits> lengths;
  const int clear = 1 << rootBits;
  int bits = rootBits + 1;
  int next = clear + 2;
  int previous = -1;
  qint64 pixels = 0;
  quint32 buffer = 0;
  int buffered = 0;
  for (const char byte : data) {
    buffer |= quint32(quint8(byte)) << buffered;
    buffered += 8;
    while (buffered >= bits) {
      const int code = int(buffer & ((1U << bits) - 1));
      buffer >>= bits;
      buffered -= bits;
      if (code == clear) {
        bits = rootBits + 1;
        next = clear + 2;
        previous = -1;
        continue;
      }
      if (code == clear + 1) return false;
      const auto lengthOf = [&](int c) { return c < clear ? 1 : lengths[std::size_t(c)]; };
      if (previous >= 0 && next < int(lengths.size())) lengths[std::size_t(next++)] = lengthOf(previous) + 1;
      if (code >= next) return false;
      pixels += lengthOf(code);
      if (pixels >= wanted) return true;
      if (next == 1 << bits && bits < LargestCodeBits) ++bits;
      previous = code;
    }
  }
  return false;
}

}  // namespace

bool IsWholeGif(QByteArrayView bytes) {
  constexpr qint64 PlaceOfFlags = 10;
  enum Block : quint8 { Extension = 0x21, Frame = 0x2C };
  ByteCursor cursor(bytes, PlaceOfFlags);
  const quint8 flags = cursor.byte();
  cursor.skip(2);
  skipColors(cursor, flags);
  quint8 block = cursor.byte();
  for (; block == Extension && cursor.inside(); block = cursor.byte()) {
    cursor.skip(1);
    takeBlocks(cursor);
  }
  if (block != Frame) return false;
  cursor.skip(4);
  const qint64 width = cursor.little16();
  const qint64 height = cursor.little16();
  skipColors(cursor, cursor.byte());
  const int rootBits = cursor.byte();
  const QByteArray data = takeBlocks(cursor);
  return cursor.inside() && codesFill(data, rootBits, width * height);
}

}  // namespace platform
