#include "platform/property_bag.h"

#include "platform/code_page.h"

namespace platform {

QVariant PropertyBag::ReadProperty(const QString& key, const QVariant& defaultValue) const {
  const auto found = values_.find(UpperCase(key));
  return found == values_.end() ? defaultValue : found->second;
}

void PropertyBag::WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue) {
  if (value == defaultValue) {
    values_.erase(UpperCase(key));
  } else {
    values_[UpperCase(key)] = value;
  }
}

bool PropertyBag::contains(const QString& key) const {
  return values_.contains(UpperCase(key));
}

}  // namespace platform
