#include <QApplication>

#include "input.h"
#include "platform/icons.h"
#include "platform/property_bag_bytes.h"
#include "progressbar/progress_bar.h"
#include "progressbar/stored_form.h"
#include "toolbar/stored_form.h"

namespace {

void checkBag(const platform::PropertyBag& bag, QByteArrayView bytes) {
  const QByteArray again = platform::StoredBytes(bag);
  fuzz::Require(again.size() == bytes.size(), "a bag is written as long as it was read");
  const std::optional<platform::PropertyBag> copy = platform::BagOfBytes(again);
  fuzz::Require(copy && platform::StoredBytes(*copy) == again, "what is written reads back the same");
  for (const auto& [key, value] : bag.Records()) {
    if (value.typeId() != qMetaTypeId<platform::StoredPicture>()) continue;
    const auto icon = platform::ReadIcon(value.value<platform::StoredPicture>().File);
    fuzz::Require(!icon || icon->Color.size() == icon->Mask.size(), "an icon's bitmaps are of one size");
  }
}

platform::PropertyBag stored(const toolbar::StoredToolBar& toolBar) {
  platform::PropertyBag bag;
  toolbar::WriteStoredForm(bag, toolBar, QFont());
  return bag;
}

void checkToolBar(const platform::PropertyBag& bag) {
  const auto toolBar = toolbar::ReadStoredForm(bag, QFont());
  if (!toolBar) return;
  const platform::PropertyBag written = stored(*toolBar);
  const auto again = toolbar::ReadStoredForm(written, QFont());
  fuzz::Require(again && platform::StoredBytes(stored(*again)) == platform::StoredBytes(written),
                "a toolbar goes round");
}

void checkProgressBar(QByteArrayView bytes) {
  progressbar::ProgressBar bar;
  progressbar::ReadProperties(bar, bytes);
  fuzz::Require(bar.min() >= 0 && bar.min() < bar.max() && bar.min() <= bar.Value() && bar.Value() <= bar.max(),
                "the value stays in its range");
  const QByteArray written = progressbar::WriteProperties(bar);
  progressbar::ProgressBar copy;
  progressbar::ReadProperties(copy, written);
  fuzz::Require(progressbar::WriteProperties(copy) == written, "a progress bar goes round");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  static const QApplication application(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, qsizetype(size));
  const std::optional<platform::PropertyBag> bag = platform::BagOfBytes(bytes);
  if (!bag) return 0;
  checkBag(*bag, bytes);
  checkToolBar(*bag);
  checkProgressBar(bytes);
  return 0;
}
