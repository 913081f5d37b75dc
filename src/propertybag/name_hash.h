#pragma once

#include <QStringView>

namespace propertybag {

/// The hash of a property's name in a stored bag. `name` has to be in lower case. For each letter the hash is rotated
/// left by 13 bits, then XORed with the letter.
quint32 nameHash(QStringView name);

}  // namespace propertybag
