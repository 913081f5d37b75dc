#include "platform/file_bytes.h"

namespace platform {

/// Usually takes one read: it asks for one byte more than the size, so a short answer means the end.
FileResult<QByteArray> OpenFile::bytes() const {
  qsizetype filled = 0;
  QByteArray bytes(size_ + 1, Qt::Uninitialized);
  for (;;) {
    const auto got = readAt(filled, bytes.data() + filled, bytes.size() - filled);
    if (!got) return got.error();
    filled += *got;
    if (*got == 0 || filled == size_) break;
    if (filled == bytes.size()) bytes.resize(filled * 2);
  }
  bytes.truncate(filled);
  return bytes;
}

FileResult<QByteArray> OpenFile::head(qsizetype most) const {
  qsizetype filled = 0;
  QByteArray bytes(most, Qt::Uninitialized);
  while (filled < most) {
    const auto got = readAt(filled, bytes.data() + filled, most - filled);
    if (!got) return got.error();
    if (*got == 0) break;
    filled += *got;
  }
  bytes.truncate(filled);
  return bytes;
}

}  // namespace platform
