#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include <QSize>

#include "propertybag/property_bag.h"

namespace propertybag {

/// A stored value as a member's type; none when it is of another kind or beyond the type's range. Any number serves as
/// a quint32, which is how colours are kept: those of the system come as negative numbers.
template <typename T>
std::optional<T> storedAs(const QVariant& value) {
  if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
    const int type = value.typeId();
    if (type != QMetaType::Short && type != QMetaType::Int && type != QMetaType::UInt) return std::nullopt;
    const qint64 number = value.toLongLong();
    if (!std::is_same_v<T, quint32> && !std::in_range<T>(number)) return std::nullopt;
    return static_cast<T>(number);
  } else {
    if (value.typeId() != qMetaTypeId<T>()) return std::nullopt;
    return value.value<T>();
  }
}

/// The size in pixels, kept in hundredths of a millimetre at 96 pixels an inch; none when it isn't stored.
std::optional<QSize> storedSize(const PropertyBag& bag);
/// Belongs in front of a control's own keys.
void storeSize(PropertyBag& bag, const QSize& pixels);

}  // namespace propertybag
