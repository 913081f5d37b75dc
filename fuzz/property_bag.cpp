#include <QApplication>

#include "drawing/icons.h"
#include "input.h"
#include "progressbar/progress_bar.h"
#include "progressbar/stored_form.h"
#include "propertybag/stored_bytes.h"
#include "toolbar/stored_form.h"

namespace {

void checkBag(const propertybag::PropertyBag& bag, QByteArrayView bytes) {
  const QByteArray again = propertybag::storedBytes(bag);
  fuzz::require(again.size() == bytes.size(), "a bag is written as long as it was read");
  const std::optional<propertybag::PropertyBag> copy = propertybag::bagOfBytes(again);
  fuzz::require(copy && propertybag::storedBytes(*copy) == again, "what is written reads back the same");
  for (const auto& [key, value] : bag.records()) {
    if (value.typeId() != qMetaTypeId<propertybag::StoredPicture>()) continue;
    const auto icon = drawing::readIcon(value.value<propertybag::StoredPicture>().file);
    fuzz::require(!icon || icon->Color.size() == icon->mask.size(), "an icon's bitmaps are of one size");
  }
}

propertybag::PropertyBag stored(const toolbar::StoredToolBar& toolBar) {
  propertybag::PropertyBag bag;
  toolbar::writeStoredForm(bag, toolBar, QFont());
  return bag;
}

void checkToolBar(const propertybag::PropertyBag& bag) {
  const auto toolBar = toolbar::readStoredForm(bag, QFont());
  if (!toolBar) return;
  const propertybag::PropertyBag written = stored(*toolBar);
  const auto again = toolbar::readStoredForm(written, QFont());
  fuzz::require(again && propertybag::storedBytes(stored(*again)) == propertybag::storedBytes(written),
                "a toolbar goes round");
}

void checkProgressBar(QByteArrayView bytes) {
  progressbar::ProgressBar bar;
  progressbar::readProperties(bar, bytes);
  fuzz::require(bar.min() >= 0 && bar.min() < bar.max() && bar.min() <= bar.Value() && bar.Value() <= bar.max(),
                "the value stays in its range");
  const QByteArray written = progressbar::writeProperties(bar);
  progressbar::ProgressBar copy;
  progressbar::readProperties(copy, written);
  fuzz::require(progressbar::writeProperties(copy) == written, "a progress bar goes round");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  static const QApplication application(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, qsizetype(size));
  const std::optional<propertybag::PropertyBag> bag = propertybag::bagOfBytes(bytes);
  if (!bag) return 0;
  checkBag(*bag, bytes);
  checkToolBar(*bag);
  checkProgressBar(bytes);
  return 0;
}
