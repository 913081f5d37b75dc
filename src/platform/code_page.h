#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

/// Conversion between text and Windows-1252, the code page of the game's files. The five bytes without a character map
/// to the control characters of the same value, so all 256 bytes convert both ways without loss.
namespace platform {

QString fromAnsi(QByteArrayView bytes);

/// The bytes of `text`, or none if a character isn't in the code page. NUL and line ends are in it.
std::optional<QByteArray> toAnsi(QStringView text);

/// Upper case within the code page, whatever the locale. One letter always gives one letter: sharp s, micro sign and
/// florin stay as they are, as do letters outside the code page.
QString upperCase(QStringView text);

/// The same for one byte of the code page.
char upperCaseByte(char byte);

/// Whether a comes before b in lists and in listings of folders: by upper case, code unit by code unit.
bool nameLess(QStringView a, QStringView b);

/// Whether the names are equal regardless of case.
bool sameName(QStringView a, QStringView b);

}  // namespace platform
