#pragma once

#include <QByteArrayView>
#include <QtEndian>

namespace platform {

/// Reads numbers of a binary file from front to back. A read beyond the end gives 0 and makes inside() false.
class ByteCursor {
 public:
  explicit ByteCursor(QByteArrayView bytes, qint64 at = 0) : bytes_(bytes), at_(at) {}

  /// Whether everything read or skipped so far was inside the file.
  bool inside() const { return at_ <= bytes_.size(); }
  void skip(qint64 count) { at_ += count; }
  /// The next `count` bytes, or fewer at the end of the file.
  QByteArrayView take(qint64 count) {
    const qint64 from = qMin<qint64>(at_, bytes_.size());
    at_ += count;
    return bytes_.sliced(from, qMin<qint64>(count, bytes_.size() - from));
  }

  quint8 byte() { return number<quint8>(qFromLittleEndian<quint8>); }
  quint16 little16() { return number<quint16>(qFromLittleEndian<quint16>); }
  quint32 little32() { return number<quint32>(qFromLittleEndian<quint32>); }
  quint32 big32() { return number<quint32>(qFromBigEndian<quint32>); }

 private:
  template <typename Number>
  Number number(Number (*read)(const void*)) {
    const qint64 from = at_;
    at_ += static_cast<qint64>(sizeof(Number));
    return inside() ? read(bytes_.data() + from) : Number{};
  }

  QByteArrayView bytes_;
  qint64 at_;
};

}  // namespace platform
