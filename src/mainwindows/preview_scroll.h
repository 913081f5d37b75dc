#pragma once

#include <functional>

#include <QPoint>
#include <QTimer>

class QRect;
class QScrollArea;

namespace mainwindows {

/// Scrolls the preview in a window that has no room for all of it.
class PreviewScroll {
 public:
  /// `scrolled` is told after each step of a drag by how much the preview has moved on under the pointer.
  PreviewScroll(QScrollArea& area, std::function<void(const QPoint& by)> scrolled);

  /// Brings a place of the preview into sight, as much of it as there is room for.
  void show(const QRect& place);
  /// A drag has come to a place of the preview: scrolls on as long as that is near an edge of what is seen.
  void dragAt(const QPoint& place);
  /// The drag has ended.
  void stop() { steps_.stop(); }

 private:
  bool scrollStep();

  QScrollArea& area_;
  std::function<void(const QPoint& by)> scrolled_;
  QPoint place_;
  QTimer steps_;
};

}  // namespace mainwindows
