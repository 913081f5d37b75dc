#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

#include "propertybag/property_bag.h"

namespace propertybag {

/// Writes a bag as bytes. Values may be qint16, int, quint32, QString, bool, QFont and StoredPicture. Throws Failure
/// for any other type, for a font whose name isn't in the code page or is longer than 255 bytes, and for a key of more
/// than 65,535 letters.
QByteArray storedBytes(const PropertyBag& bag);

/// Reads a bag from bytes. None if any of them is wrong. 32-bit numbers become int. A font's character set and flags
/// are ignored.
std::optional<PropertyBag> bagOfBytes(QByteArrayView bytes);

}  // namespace propertybag
