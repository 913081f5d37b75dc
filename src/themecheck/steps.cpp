#include "themecheck/steps.h"

#include <utility>

namespace themecheck {

void Steps::add(const QString& about, const std::function<void()>& work) {
  addEach(about, 1, [work](size_t) { work(); });
}

void Steps::addEach(const QString& about, size_t count, const std::function<void(size_t)>& work) {
  if (count > 0) steps_.push_back({about, count, work, 0});
}

void Steps::step() {
  Each& present = steps_.front();  // stays where it is when others are added behind it
  const size_t number = present.next++;
  if (present.next < present.count) return present.work(number);
  const Each last = std::move(present);
  steps_.pop_front();
  last.work(number);
}

}  // namespace themecheck
