#include "platform/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform {

namespace {

constexpr QChar Blank(0x20);
constexpr int SignificantDigits = 15;

bool isDigit(QChar letter) {
  return letter >= QChar(u'0') && letter <= QChar(u'9');
}

/// The value of digits that a double can't hold: infinite if the number is too large, 0 if it is too small.
double beyondRange(const QByteArray& digits) {
  const qsizetype first = std::find_if(digits.begin(), digits.end(), [](char c) { return c != '0'; }) - digits.begin();
  return first < digits.size() && digits[first] != '.' ? std::numeric_limits<double>::infinity() : 0;
}

/// The number at the start of a text.
struct NumberHead {
  QByteArray digits;  ///< including the point
  bool negative = false;
  bool holdsDigit = false;  ///< if not, there is no number
  qsizetype end = 0;        ///< where the number ends in the text
};

NumberHead headOf(QStringView text) {
  NumberHead head;
  qsizetype& at = head.end;
  while (at < text.size() && text[at] == Blank) ++at;
  head.negative = at < text.size() && text[at] == u'-';
  if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) ++at;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (isDigit(text[at])) {
      head.holdsDigit = true;
    } else if (text[at] == u'.' && !point) {
      point = true;
      if (!head.holdsDigit) head.digits += '0';
    } else {
      break;
    }
    head.digits += static_cast<char>(text[at].unicode());
  }
  return head;
}

/// The number of a text that is nothing but a few digits, as most are; none for any other.
std::optional<int> smallWhole(QStringView text) {
  constexpr qsizetype MostDigits = 9;
  if (text.isEmpty() || text.size() > MostDigits) return std::nullopt;
  int number = 0;
  for (const QChar letter : text) {
    if (!isDigit(letter)) return std::nullopt;
    number = number * 10 + (letter.unicode() - u'0');
  }
  return number;
}

template <typename Whole>
std::optional<Whole> roundTo(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    return std::nullopt;
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

double numberOf(QStringView text) {
  if (const auto small = smallWhole(text)) return *small;
  const NumberHead head = headOf(text);
  if (!head.holdsDigit) return 0;
  bool fits = false;
  double number = head.digits.toDouble(&fits);
  if (!fits) number = beyondRange(head.digits);
  return head.negative ? -number : number;
}

bool isNumber(QStringView text) {
  const NumberHead head = headOf(text);
  return head.holdsDigit && trimBlanks(text.sliced(head.end)).isEmpty();
}

std::optional<qint16> roundToInt16(double number) {
  return roundTo<qint16>(number);
}

std::optional<quint8> roundToByte(double number) {
  return roundTo<quint8>(number);
}

QString numberText(double number) {
  if (!std::isfinite(number)) return QString::number(number);
  // Taken apart into digits and exponent, as the decimals that 15 digits need depend on the exponent.
  const QByteArray scientific = QByteArray::number(number, 'e', SignificantDigits - 1);
  const int exponent = scientific.mid(scientific.indexOf('e') + 1).toInt();
  QByteArray digits = scientific.left(scientific.indexOf('e'));
  const bool negative = digits.startsWith('-');
  digits.replace("-", "").replace(".", "");
  while (digits.size() > 1 && digits.endsWith('0')) digits.chop(1);
  if (digits == "0") return QStringLiteral("0");

  if (exponent < 0) {
    digits = "0." + QByteArray(-exponent - 1, '0') + digits;
  } else if (digits.size() <= exponent + 1) {
    digits += QByteArray(exponent + 1 - digits.size(), '0');
  } else {
    digits.insert(exponent + 1, '.');
  }
  return QString::fromLatin1(negative ? "-" + digits : digits);
}

QString trimBlanks(QStringView text) {
  while (text.startsWith(Blank)) text = text.sliced(1);
  while (text.endsWith(Blank)) text.chop(1);
  return text.toString();
}

QStringList splitAtBlanks(QStringView text) {
  return text.toString().split(Blank);
}

}  // namespace platform
