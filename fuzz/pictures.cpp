#include "drawing/pictures.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include "input.h"

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  static const QCoreApplication application(*count, *arguments);
  QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, qsizetype(size));
  const QImage picture = drawing::decodePicture(bytes);
  if (picture.isNull()) return 0;
  fuzz::require(picture.format() == QImage::Format_ARGB32, "one format for all pictures");
  // What a decoder leaves unset would differ.
  fuzz::require(drawing::decodePicture(bytes) == picture, "all pixels come from the file");
  return 0;
}
