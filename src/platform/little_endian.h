#pragma once

#include <QByteArray>
#include <QtEndian>

namespace platform {

/// Puts the number behind the bytes, its lowest byte first.
template <typename Number>
void appendLittle(QByteArray& bytes, Number number) {
  char stored[sizeof(Number)];
  qToLittleEndian(number, stored);
  bytes.append(stored, sizeof stored);
}

}  // namespace platform
