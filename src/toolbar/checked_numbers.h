#pragma once

#include <cmath>
#include <limits>
#include <stdexcept>

#include <QtGlobal>

namespace toolbar {

/// Converts to int. Throws std::overflow_error if the number doesn't fit.
inline int checkedInt(qint64 number) {
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
    throw std::overflow_error("a measure beyond its range");
  }
  return static_cast<int>(number);
}

/// Rounds to the nearest whole number, a half to the even one. Throws std::overflow_error if it doesn't fit.
inline int nearestInt(double number) {
  constexpr double limit = 1e15;
  if (!(std::abs(number) < limit)) throw std::overflow_error("a measure beyond its range");
  return checkedInt(static_cast<qint64>(std::nearbyint(number)));
}

}  // namespace toolbar
