#include "toolwindow/own_sizes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace toolwindow {

void OwnSizes::add(const QSize& size) {
  // The last one is the window's own until the user gives it another.
  if (!given_.empty()) given_.back().until = QDeadlineTimer(LongestAnswer);
  given_.erase(
      std::remove_if(given_.begin(), given_.end(), [](const Given& given) { return given.until.hasExpired(); }),
      given_.end());
  given_.push_back({size, QDeadlineTimer(QDeadlineTimer::Forever)});
}

bool OwnSizes::has(const QSize& size, double scale) const {
  const int slack = scale == std::floor(scale) ? 0 : 1;
  return std::any_of(given_.begin(), given_.end(), [&](const Given& given) {
    const QSize off = size - given.size;
    return !given.until.hasExpired() && std::abs(off.width()) <= slack && std::abs(off.height()) <= slack;
  });
}

}  // namespace toolwindow
