#include "controls/frame_pacer.h"

#include <chrono>
#include <utility>

namespace controls {
namespace {

using namespace std::chrono_literals;

constexpr auto FrameTime = 16ms;

}  // namespace

FramePacer::FramePacer(std::function<void()> present) {
  next_.setSingleShot(true);
  next_.setTimerType(Qt::PreciseTimer);
  next_.callOnTimeout(std::move(present));
}

void FramePacer::request() {
  if (next_.isActive()) return;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  next_.start(FrameTime - std::chrono::duration_cast<std::chrono::milliseconds>(now) % FrameTime);
}

}  // namespace controls
