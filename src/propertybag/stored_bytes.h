#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

#include "propertybag/property_bag.h"

namespace propertybag {

/// The stored bytes of a bag, its records in order. A value is a qint16, an int or quint32, a QString, a bool, a QFont
/// (with the face's own name) or a StoredPicture; a value of another type, a font whose name isn't in the code page or
/// is longer than a byte counts, and a key of more than 65,535 letters can't be stored: throws Failure.
QByteArray storedBytes(const PropertyBag& bag);

/// The bag of stored bytes; none when anything in them isn't as it was written: a bag is taken whole or not at all.
/// Numbers of 32 bits come as int. A font's character set and flags are passed over.
std::optional<PropertyBag> bagOfBytes(QByteArrayView bytes);

}  // namespace propertybag
