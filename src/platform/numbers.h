#pragma once

#include <optional>

#include <QString>
#include <QStringList>
#include <QStringView>

/// Numbers as the game's files write them. A blank is the character 0x20 and no other.
namespace platform {

/// The number at the start of `text`: blanks, a sign, digits and one "." as the decimal point, whatever the locale. It
/// has no exponent and no blanks inside. 0 if there is none; infinite if a double can't hold it.
double numberOf(QStringView text);

/// Whether all of `text`, except blanks at its ends, is such a number.
bool isNumber(QStringView text);

/// Rounds to the nearest whole number, a half to the even one. None if it doesn't fit into 16 bits.
std::optional<qint16> roundToInt16(double number);

/// The same for 0 to 255.
std::optional<quint8> roundToByte(double number);

/// The number in decimal digits: up to 15 significant ones, no trailing zeros, "." as the point, no exponent.
QString numberText(double number);

/// `text` without blanks at its ends.
QString trimBlanks(QStringView text);

/// Splits at every blank: two blanks in a row give an empty field, and so does an empty text.
QStringList splitAtBlanks(QStringView text);

}  // namespace platform
