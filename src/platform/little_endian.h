#pragma once

#include <QByteArray>
#include <QtEndian>

namespace platform {

/// Appends the number to the bytes, lowest byte first.
template <typename Number>
void appendLittle(QByteArray& bytes, Number number) {
  char stored[sizeof(Number)];
  qToLittleEndian(number, stored);
  bytes.append(stored, sizeof stored);
}

}  // namespace platform
