#include <array>
#include <optional>

#include <QByteArray>

#include "drawing/picture_ends.h"
#include "platform/byte_cursor.h"

namespace drawing {

namespace {

constexpr int LargestCodeBits = 12;

/// Joins the data blocks up to the empty one at their end. Each block starts with its length.
QByteArray takeBlocks(platform::ByteCursor& cursor) {
  QByteArray data;
  for (int size = cursor.byte(); size != 0 && cursor.inside(); size = cursor.byte()) data += cursor.take(size);
  return data;
}

void skipColors(platform::ByteCursor& cursor, quint8 flags) {
  constexpr quint8 HasTable = 0x80;
  if (flags & HasTable) cursor.skip(3 << ((flags & 7) + 1));
}

/// The code table of the compression. It holds only how many pixels each code stands for.
class CodeTable {
 public:
  explicit CodeTable(int rootBits) : rootBits_(rootBits), clear_(1 << rootBits) { clear(); }

  int bits() const { return bits_; }
  /// The number of pixels that the code stands for; none for the end code or a wrong code.
  std::optional<qint64> pixelsOf(int code) {
    if (code == clear_) {
      clear();
      return 0;
    }
    if (previous_ >= 0 && next_ < std::ssize(lengths_)) lengths_[next_++] = lengthOf(previous_) + 1;
    if (code == clear_ + 1 || code >= next_) return std::nullopt;
    if (next_ == 1 << bits_ && bits_ < LargestCodeBits) ++bits_;
    previous_ = code;
    return lengthOf(code);
  }

 private:
  void clear() {
    bits_ = rootBits_ + 1;
    next_ = clear_ + 2;
    previous_ = -1;
  }
  qint64 lengthOf(int code) const { return code < clear_ ? 1 : lengths_[code]; }

  int rootBits_;
  int clear_;
  int bits_ = 0;
  int next_ = 0;
  int previous_ = -1;
  std::array<qint64, 1 << LargestCodeBits> lengths_{};
};

/// Whether the codes stand for at least so many pixels.
bool codesFill(const QByteArray& data, int rootBits, qint64 wanted) {
  if (rootBits < 1 || rootBits >= LargestCodeBits) return false;
  CodeTable table(rootBits);
  quint32 buffer = 0;
  int buffered = 0;
  for (const char byte : data) {
    buffer |= static_cast<quint32>(static_cast<uchar>(byte)) << buffered;
    buffered += 8;
    while (buffered >= table.bits()) {
      const int bits = table.bits();
      const auto pixels = table.pixelsOf(static_cast<int>(buffer & ((1U << bits) - 1)));
      if (!pixels) return false;
      buffer >>= bits;
      buffered -= bits;
      wanted -= *pixels;
    }
    if (wanted <= 0) return true;
  }
  return false;
}

}  // namespace

bool isWholeGif(QByteArrayView bytes) {
  constexpr qint64 PlaceOfFlags = 10;
  enum Block : quint8 { Extension = 0x21, Frame = 0x2C };
  platform::ByteCursor cursor(bytes, PlaceOfFlags);
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

}  // namespace drawing
