#pragma once

#include <functional>
#include <optional>

#include <QPoint>
#include <QSet>
#include <QTimer>

#include "editing/held_numbers.h"

class QKeyEvent;

namespace mainwindows {

/// What one press of an arrow key does to what is in hand.
struct ArrowStep {
  editing::Grip grip;  ///< Ctrl sizes
  QPoint by;           ///< Shift goes far
};

/// The arrow keys on the preview: which of them are down, and when they have come to rest.
class ArrowKeys {
 public:
  /// Calls `rested` when no key is down any more, and none has been pressed for a while. Its timer is a child of
  /// `owner`.
  ArrowKeys(QObject* owner, const std::function<void()>& rested);

  /// The step that a key stands for; none if it is another key, or pressed together with Alt or Meta.
  static std::optional<ArrowStep> stepOf(const QKeyEvent& event);

  void press(int key);
  void release(int key) { down_.remove(key); }
  bool areAtRest() const { return down_.isEmpty() && !rest_.isActive(); }
  /// None of them counts as down any more.
  void forget() { down_.clear(); }

 private:
  QSet<int> down_;
  QTimer rest_;  ///< runs out when none has been pressed for a while
};

}  // namespace mainwindows
