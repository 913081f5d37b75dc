#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include <QSize>

#include "propertybag/property_bag.h"

namespace propertybag {

/// A stored value converted to a member's type. None if it has another type or is out of range. Any number is accepted
/// as quint32, the type of colours: system colours are stored as negative numbers.
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

/// The control's size in pixels, or none. It is stored in hundredths of a millimetre, at 96 pixels per inch.
std::optional<QSize> storedSize(const PropertyBag& bag);
/// Has to be called before the control's own keys are written.
void storeSize(PropertyBag& bag, const QSize& pixels);

}  // namespace propertybag
