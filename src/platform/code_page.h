#pragma once

#include <array>
#include <optional>
#include <utility>

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

/// The same for each byte of the code page.
inline constexpr std::array<char, 256> UpperCaseBytes = [] {
  constexpr std::pair<int, int> letters[] = {{'a', 'z'}, {0xE0, 0xF6}, {0xF8, 0xFE}};
  std::array<char, 256> table{};
  for (int byte = 0; byte < 256; ++byte) table[std::size_t(byte)] = static_cast<char>(byte);
  for (const auto& [first, last] : letters) {
    for (int byte = first; byte <= last; ++byte) table[std::size_t(byte)] = static_cast<char>(byte - 0x20);
  }
  for (const int byte : {0x9A, 0x9C, 0x9E}) table[std::size_t(byte)] = static_cast<char>(byte - 0x10);
  table[0xFF] = static_cast<char>(0x9F);
  return table;
}();
inline char upperCaseByte(char byte) {
  return UpperCaseBytes[static_cast<unsigned char>(byte)];
}

/// Whether a comes before b in lists and in listings of folders: by upper case, code unit by code unit.
bool nameLess(QStringView a, QStringView b);

/// Whether the names are equal regardless of case.
bool sameName(QStringView a, QStringView b);

}  // namespace platform
