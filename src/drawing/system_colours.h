#pragma once

#include <QColor>
#include <QtGlobal>

namespace drawing {

/// Bit 31 of a colour value: the low byte is then an index of the system colours.
inline constexpr quint32 SystemColorBit = 0x80000000U;
inline constexpr quint32 ButtonFaceColor = 0x8000000FU;

/// The system colour of an index 0 to 24, the classic palette; black for an index outside.
QColor systemColor(int index);

/// The colour of a 32-bit colour value: red in the low byte, or a system colour when bit 31 is set.
QColor colorOf(quint32 value);

/// The colour value of a colour: red in the low byte.
quint32 colorValue(const QColor& color);

}  // namespace drawing
