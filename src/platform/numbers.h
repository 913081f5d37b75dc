#pragma once

#include <optional>

#include <QString>
#include <QStringList>
#include <QStringView>

/// Numbers as the game's files write them, and the blanks (the character 0x20 and no other) round them.
namespace platform {

/// The number at the head of `text`: blanks, a sign, digits, one "." as the decimal point whatever the locale; no
/// exponent, no blanks inside. 0 without one; infinite when it is beyond the range of a double.
double numberOf(QStringView text);

/// Whether all of `text`, but for blanks at its ends, is such a number.
bool isNumber(QStringView text);

/// Nearest whole number, a half to the even neighbour, as 16-bit signed; none when it doesn't fit.
std::optional<qint16> roundToInt16(double number);

/// The same, as a byte 0 to 255.
std::optional<quint8> roundToByte(double number);

/// Decimal text of a number: up to 15 significant digits, no trailing zeros, "." as the point, no exponent.
QString numberText(double number);

/// `text` less the blanks at both ends.
QString trimBlanks(QStringView text);

/// The fields between single blanks; two blanks in a row enclose an empty field. Empty text gives one empty field.
QStringList splitAtBlanks(QStringView text);

}  // namespace platform
