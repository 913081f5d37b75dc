#include "propertybag/name_hash.h"

#include <bit>

namespace propertybag {

quint32 nameHash(QStringView name) {
  constexpr int Turn = 13;
  quint32 hash = 0;
  for (const QChar unit : name) hash = std::rotl(hash, Turn) ^ unit.unicode();
  return hash;
}

}  // namespace propertybag
