#include "themefiles/mark_record.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

namespace themefiles {

const MarkKey* markKeyOf(QStringView key) {
  const auto row = std::find_if(MarkKeys.begin(), MarkKeys.end(), [&](const MarkKey& each) { return each.key == key; });
  return row == MarkKeys.end() ? nullptr : &*row;
}

void followCommit(CursorRecord& record, const QString& key, const QString& value) {
  const MarkKey* const row = markKeyOf(key);
  if (row == nullptr) return;
  const double number = platform::numberOf(value);
  if (row->measure != nullptr) {
    record.*row->measure = std::isfinite(number) ? platform::numberText(number) : value;
  } else {
    qint16& size = record.*row->roundedSize;
    size = platform::roundToInt16(number).value_or(size);
  }
}

}  // namespace themefiles
