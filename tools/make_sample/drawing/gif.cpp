#include "drawing/gif.h"

#include <map>
#include <utility>

namespace sample {

namespace {

constexpr int CodeLimit = 4096;

void putWord(QByteArray& bytes, int value) {
  bytes.append(static_cast<char>(value & 255));
  bytes.append(static_cast<char>(value >> 8));
}

/// Codes of changing width, packed low bit first.
class BitWriter {
 public:
  void put(int code, int width) {
    pending_ |= static_cast<unsigned>(code) << count_;
    count_ += width;
    while (count_ >= 8) {
      bytes_.append(static_cast<char>(pending_ & 255U));
      pending_ >>= 8;
      count_ -= 8;
    }
  }
  QByteArray finish() {
    if (count_ > 0) bytes_.append(static_cast<char>(pending_ & 255U));
    return bytes_;
  }

 private:
  QByteArray bytes_;
  unsigned pending_ = 0;
  int count_ = 0;
};

QByteArray compress(const std::vector<unsigned char>& dots, int depth) {
  const int clear = 1 << depth;
  const int end = clear + 1;
  std::map<std::pair<int, unsigned char>, int> known;
  int next = end + 1;
  int width = depth + 1;
  BitWriter bits;
  bits.put(clear, width);
  int prefix = dots.front();
  for (size_t i = 1; i < dots.size(); ++i) {
    const auto found = known.find({prefix, dots[i]});
    if (found != known.end()) {
      prefix = found->second;
      continue;
    }
    bits.put(prefix, width);
    if (next < CodeLimit) {
      if (next == 1 << width) ++width;
      known[{prefix, dots[i]}] = next++;
    } else {
      bits.put(clear, width);
      known.clear();
      next = end + 1;
      width = depth + 1;
    }
    prefix = dots[i];
  }
  bits.put(prefix, width);
  if (next == 1 << width && next < CodeLimit) ++width;
  bits.put(end, width);
  return bits.finish();
}

}  // namespace

QByteArray encodeGif(const IndexedPicture& picture) {
  int depth = 2;
  while (1U << depth < picture.colors.size()) ++depth;
  QByteArray bytes("GIF89a");
  putWord(bytes, picture.width);
  putWord(bytes, picture.height);
  bytes.append(static_cast<char>(0x80 | (depth - 1) << 4 | (depth - 1)));
  bytes.append(2, '\0');
  for (size_t i = 0; i < 1U << depth; ++i) {
    const QRgb color = i < picture.colors.size() ? picture.colors[i] : 0;
    for (const int channel : {qRed(color), qGreen(color), qBlue(color)}) bytes.append(static_cast<char>(channel));
  }
  if (picture.transparent) {
    bytes.append(QByteArray::fromHex("21f904010000"));
    bytes.append(static_cast<char>(*picture.transparent));
    bytes.append('\0');
  }
  bytes.append(',');
  putWord(bytes, 0);
  putWord(bytes, 0);
  putWord(bytes, picture.width);
  putWord(bytes, picture.height);
  bytes.append('\0');
  bytes.append(static_cast<char>(depth));
  const QByteArray data = compress(picture.dots, depth);
  for (qsizetype at = 0; at < data.size(); at += 255) {
    const QByteArray block = data.mid(at, 255);
    bytes.append(static_cast<char>(block.size()));
    bytes.append(block);
  }
  bytes.append('\0');
  bytes.append(';');
  return bytes;
}

}  // namespace sample
