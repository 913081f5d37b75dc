#include "platform/numbers.h"

#include <cmath>
#include <cstring>

#include "input.h"
#include "platform/code_page.h"

using namespace platform;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, qsizetype(size));
  const QString text = fromAnsi(bytes);
  fuzz::require(toAnsi(text) == bytes, "bytes survive the code page");
  fuzz::require(splitAtBlanks(text).join(u' ') == text, "fields make up the text");

  double number = numberOf(text);
  fuzz::require(!std::isnan(number), "every text has a number");
  if (const auto rounded = roundToInt16(number))
    fuzz::require(std::abs(*rounded - number) <= 0.5, "rounding to 16 bits");
  if (const auto rounded = roundToByte(number)) fuzz::require(std::abs(*rounded - number) <= 0.5, "rounding to a byte");

  if (size >= sizeof(double)) std::memcpy(&number, data, sizeof(double));
  if (!std::isfinite(number)) return 0;
  const double again = numberOf(numberText(number));
  const bool close = std::abs(again - number) <= std::abs(number) * 1e-14;
  fuzz::require(close || !std::isnormal(number) || std::isinf(again), "a number's text gives the number");
  return 0;
}
