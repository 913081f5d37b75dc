#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

/// The characters of the bytes 0x80 to 0x9F. Every other byte is the character of the same value.
constexpr auto UpperControls = std::to_array<char16_t>({
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
});
static_assert(UpperControls.size() == 0xA0 - 0x80);

constexpr int FirstOfTable = 0x80;

constexpr char16_t letterOf(unsigned char byte) {
  const int place = byte - FirstOfTable;
  return place >= 0 && place < std::ssize(UpperControls) ? UpperControls[place] : static_cast<char16_t>(byte);
}

std::optional<unsigned char> byteOf(char16_t letter) {
  if (letter < FirstOfTable) return static_cast<unsigned char>(letter);
  if (letter <= 0xFF && letterOf(static_cast<unsigned char>(letter)) == letter) {
    return static_cast<unsigned char>(letter);
  }
  const auto found = std::find(UpperControls.begin(), UpperControls.end(), letter);
  if (found == UpperControls.end()) return std::nullopt;
  return static_cast<unsigned char>(FirstOfTable + (found - UpperControls.begin()));
}

char16_t upperLetter(QChar letter) {
  const auto byte = byteOf(letter.unicode());
  return byte ? letterOf(static_cast<unsigned char>(upperCaseByte(static_cast<char>(*byte)))) : letter.unicode();
}

}  // namespace

QString fromAnsi(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return QChar(letterOf(static_cast<unsigned char>(byte))); });
  return text;
}

std::optional<QByteArray> toAnsi(QStringView text) {
  QByteArray bytes(text.size(), Qt::Uninitialized);
  char* to = bytes.data();
  for (const QChar letter : text) {
    const auto byte = byteOf(letter.unicode());
    if (!byte) return std::nullopt;
    *to++ = static_cast<char>(*byte);
  }
  return bytes;
}

QString upperCase(QStringView text) {
  QString upper(text.size(), Qt::Uninitialized);
  std::transform(text.begin(), text.end(), upper.begin(), [](QChar letter) { return QChar(upperLetter(letter)); });
  return upper;
}

bool nameLess(QStringView a, QStringView b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](QChar x, QChar y) { return upperLetter(x) < upperLetter(y); });
}

bool sameName(QStringView a, QStringView b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](QChar x, QChar y) { return upperLetter(x) == upperLetter(y); });
}

}  // namespace platform
