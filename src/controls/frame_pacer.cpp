#include "controls/frame_pacer.h"

#include <utility>

namespace controls {
namespace {

constexpr int FrameTime = 16;  // ms

}  // namespace

FramePacer::FramePacer(std::function<void()> present) : present_(std::move(present)) {
  rest_.setSingleShot(true);
  rest_.setTimerType(Qt::PreciseTimer);
  rest_.callOnTimeout([this] { presentNow(); });
}

void FramePacer::Request() {
  if (rest_.isActive()) return;
  const qint64 past = sinceLast_.isValid() ? sinceLast_.elapsed() : FrameTime;
  if (past < FrameTime) {
    rest_.start(static_cast<int>(FrameTime - past));
  } else {
    presentNow();
  }
}

void FramePacer::presentNow() {
  sinceLast_.start();
  present_();
}

}  // namespace controls
