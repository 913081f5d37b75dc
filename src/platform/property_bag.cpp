#include "platform/property_bag.h"

#include <algorithm>

#include "platform/code_page.h"

namespace platform {

QVariant PropertyBag::ReadProperty(const QString& key, const QVariant& defaultValue) const {
  const auto found = entries_.find(UpperCase(key));
  return found == entries_.end() ? defaultValue : found->second.record.value;
}

void PropertyBag::WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue) {
  if (value == defaultValue) {
    entries_.erase(UpperCase(key));
    return;
  }
  const auto [place, isNew] = entries_.try_emplace(UpperCase(key), Entry{written_, {key, value}});
  if (isNew) {
    ++written_;
  } else {
    place->second.record.value = value;
  }
}

bool PropertyBag::contains(const QString& key) const {
  return entries_.contains(UpperCase(key));
}

std::vector<PropertyBag::Record> PropertyBag::Records() const {
  std::vector<const Entry*> inOrder;
  inOrder.reserve(entries_.size());
  for (const auto& [key, entry] : entries_) inOrder.push_back(&entry);
  std::sort(inOrder.begin(), inOrder.end(), [](const Entry* a, const Entry* b) { return a->order < b->order; });
  std::vector<Record> records;
  records.reserve(inOrder.size());
  for (const Entry* entry : inOrder) records.push_back(entry->record);
  return records;
}

}  // namespace platform
