#include "drawing/picture_ends.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <optional>

#include <QByteArray>

#include "drawing/bitmaps.h"
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
      if (!pixels) return wanted <= 0;
      buffer >>= bits;
      buffered -= bits;
      wanted -= *pixels;
    }
    if (wanted <= 0) return true;
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
