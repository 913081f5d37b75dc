#include "drawing/pictures.h"

#include <cstdlib>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include "drawing/jpeg_pictures.h"
#include "drawing/picture_ends.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace drawing {

namespace {

/// The limit for a picture's file, and for its pixels in memory.
constexpr int LargestMegabytes = 256;
constexpr qint64 LargestBytes = static_cast<qint64>(LargestMegabytes) * 1024 * 1024;
constexpr qint64 LargestArea = LargestBytes / 4;

struct Kind {
  const char* mark;  ///< the first bytes of such a file
  const char* format;
  bool (*isWhole)(QByteArrayView bytes);
};

// The JPEG decoder checks by itself that the file is complete.
constexpr Kind Kinds[] = {
    {"BM", "bmp", isWholeBmp},
    {"GIF8", "gif", isWholeGif},
    {"\xFF\xD8\xFF", "jpeg", nullptr},
    {"\x89PNG\r\n\x1A\n", "png", isWholePng},
};
constexpr qint64 LongestMark = 8;

const Kind* kindOf(QByteArrayView bytes) {
  for (const Kind& kind : Kinds) {
    if (bytes.startsWith(kind.mark)) return &kind;
  }
  return nullptr;
}

/// Whether the file can be a picture, by its size and first bytes. Nothing more is read.
bool mayBePicture(const platform::OpenFile& file) {
  if (file.size() > LargestBytes) return false;
  const auto head = file.head(LongestMark);
  return head && kindOf(*head);
}

}  // namespace

QImage decodePicture(QByteArrayView bytes) {
  const Kind* const kind = kindOf(bytes);
  if (!kind) return {};
  if (!kind->isWhole) return decodeJpeg(bytes, LargestArea);
  if (!kind->isWhole(bytes)) return {};
  QByteArray data = QByteArray::fromRawData(bytes.data(), bytes.size());
  QBuffer buffer(&data);
  QImageReader::setAllocationLimit(LargestMegabytes);
  QImageReader reader(&buffer, kind->format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(false);
  const QSize size = reader.size();
  // The height is negative if rows are stored from top to bottom.
  if (std::abs(static_cast<qint64>(size.width()) * size.height()) > LargestArea) return {};
  QImage picture = reader.read();
  if (picture.isNull()) return {};
  picture.setColorSpace({});
  return std::move(picture).convertToFormat(QImage::Format_ARGB32);
}

QImage LoadPicture(const QString& path) {
  try {
    const auto file = platform::openFile(path);
    if (!mayBePicture(file)) return {};
    const auto bytes = file.bytes();
    return bytes ? decodePicture(*bytes) : QImage();
  } catch (const platform::Failure&) {
    return {};
  }
}

}  // namespace drawing
