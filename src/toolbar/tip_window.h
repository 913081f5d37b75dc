#pragma once

#include <QWidget>

#include "toolbar/surroundings.h"

namespace toolbar {

/// A tool tip beside the pointer: a rectangle or a balloon.
class TipWindow : public QWidget {
 public:
  TipWindow(const ToolTip& tip, QWidget* parent);

  /// Shows the tip below this place on the screen, or above it if there is no room.
  void showAt(const QPoint& pointer);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize contents() const;
  QRect body() const;
  QPainterPath outline() const;

  ToolTip tip_;
  bool isAbove_ = false;
  int stem_ = 0;  ///< x of the balloon's tip
};

}  // namespace toolbar
