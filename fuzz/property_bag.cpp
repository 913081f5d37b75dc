#include <QGuiApplication>

#include "input.h"
#include "platform/icons.h"
#include "platform/property_bag_bytes.h"

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  static const QGuiApplication application(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, qsizetype(size));
  const std::optional<platform::PropertyBag> bag = platform::BagOfBytes(bytes);
  if (!bag) return 0;
  const QByteArray again = platform::StoredBytes(*bag);
  fuzz::Require(again.size() == bytes.size(), "a bag is written as long as it was read");
  const std::optional<platform::PropertyBag> copy = platform::BagOfBytes(again);
  fuzz::Require(copy && platform::StoredBytes(*copy) == again, "what is written reads back the same");
  for (const auto& [key, value] : bag->Records()) {
    if (value.typeId() != qMetaTypeId<platform::StoredPicture>()) continue;
    const auto icon = platform::ReadIcon(value.value<platform::StoredPicture>().File);
    fuzz::Require(!icon || icon->Color.size() == icon->Mask.size(), "an icon's bitmaps are of one size");
  }
  return 0;
}
