#include "propertybag/property_bag.h"

#include <algorithm>

#include "platform/code_page.h"

namespace propertybag {

QVariant PropertyBag::ReadProperty(const QString& key, const QVariant& defaultValue) const {
  const auto found = entries_.find(platform::upperCase(key));
  return found == entries_.end() ? defaultValue : found->second.record.value;
}

void PropertyBag::WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue) {
  if (value == defaultValue) {
    entries_.erase(platform::upperCase(key));
    return;
  }
  const auto [place, isNew] = entries_.try_emplace(platform::upperCase(key), Entry{written_, {key, value}});
  if (isNew) {
    ++written_;
  } else {
    place->second.record.value = value;
  }
}

bool PropertyBag::contains(const QString& key) const {
  return entries_.contains(platform::upperCase(key));
}

std::vector<PropertyBag::Record> PropertyBag::records() const {
  std::vector<const Entry*> inOrder;
  inOrder.reserve(entries_.size());
  for (const auto& [key, entry] : entries_) inOrder.push_back(&entry);
  std::sort(inOrder.begin(), inOrder.end(), [](const Entry* a, const Entry* b) { return a->order < b->order; });
  std::vector<Record> records;
  records.reserve(inOrder.size());
  for (const Entry* entry : inOrder) records.push_back(entry->record);
  return records;
}

}  // namespace propertybag
