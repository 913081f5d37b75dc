#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

/// The ANSI code page of the game's files, Windows-1252. The five bytes that the code page leaves unassigned stand for
/// the C1 control characters of the same value, so that all 256 bytes go to text and back without loss.
namespace platform {

QString fromAnsi(QByteArrayView bytes);

/// The bytes of `text`; none when a letter isn't in the code page (a NUL or a line end is).
std::optional<QByteArray> toAnsi(QStringView text);

/// Upper case by the letters of the code page, not by locale: one letter stays one letter, so that sharp s, micro sign
/// and florin, which have no capital of one letter there, stay as they are. Letters outside the code page stay too.
QString upperCase(QStringView text);

/// The same for one byte in the code page.
char upperCaseByte(char byte);

/// Order of names in lists and in listings of folders: by upper case, code unit by code unit. True when a comes first.
bool nameLess(QStringView a, QStringView b);

/// Equal but for case.
bool sameName(QStringView a, QStringView b);

}  // namespace platform
