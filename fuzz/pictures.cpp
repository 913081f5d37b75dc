#include "platform/pictures.h"

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
  const QImage picture = platform::DecodePicture(bytes);
  if (picture.isNull()) return 0;
  fuzz::Require(picture.format() == QImage::Format_ARGB32, "one format for all pictures");
  // What a decoder leaves unset would differ.
  fuzz::Require(platform::DecodePicture(bytes) == picture, "all pixels come from the file");
  return 0;
}
