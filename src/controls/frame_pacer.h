#pragma once

#include <functional>

#include <QTimer>

namespace controls {

/// Keeps long work from painting more often than a screen can show: work that changes a widget at every step asks for a
/// frame each time, and gets one in 16 ms, the time of a frame on a screen of 60 Hz. All pacers present at the same
/// moments, so that the widgets of a window are painted together.
class FramePacer {
 public:
  /// `present` brings what has changed onto the screen.
  explicit FramePacer(std::function<void()> present);

  /// Presents in the next frame.
  void request();

 private:
  QTimer next_;
};

}  // namespace controls
