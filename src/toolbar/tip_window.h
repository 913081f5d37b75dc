#pragma once

#include <QWidget>

#include "toolbar/surroundings.h"

namespace toolbar {

/// A tip beside the pointer, rectangular or as a balloon, gone at the next move.
class TipWindow : public QWidget {
 public:
  TipWindow(const ToolTip& tip, QWidget* parent);

  /// Shows it below this place on the screen, or above it where the screen ends.
  void showAt(const QPoint& pointer);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize contents() const;
  QRect body() const;
  QPainterPath outline() const;

  ToolTip tip_;
  bool isAbove_ = false;
  int stem_ = 0;  ///< of a balloon: x of its tip
};

}  // namespace toolbar
