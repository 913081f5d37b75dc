#pragma once

#include <QStringView>

namespace propertybag {

/// The hash that stands beside a property's name in a stored bag; `name` is in lower case. From the first letter to the
/// last the hash is turned left by 13 bits and the letter's code unit put in by an exclusive or.
quint32 nameHash(QStringView name);

}  // namespace propertybag
