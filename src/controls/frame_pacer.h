#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QTimer>

namespace controls {

/// Keeps long work from painting more often than a screen can show: work that changes a widget at every step asks for a
/// frame each time, and gets one in about 16 ms, the time of a frame on a screen of 60 Hz.
class FramePacer {
 public:
  /// `present` brings what has changed onto the screen.
  explicit FramePacer(std::function<void()> present);

  /// Presents at once, or as soon as the last frame has had its time.
  void Request();

 private:
  void presentNow();

  std::function<void()> present_;
  QElapsedTimer sinceLast_;
  QTimer rest_;
};

}  // namespace controls
