#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include "controls/look.h"

/// The window of controls under test, with a neighbour that can have the focus instead of them.
struct ActiveWindow : QWidget {
  ActiveWindow() {
    controls::ApplyLook(*qApp);
    neighbour.setGeometry(0, 150, 20, 20);
    neighbour.setFocusPolicy(Qt::StrongFocus);
  }
  void open() {
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
  }
  QWidget neighbour{this};
};

inline void TurnWheel(QWidget& widget, int delta) {
  const QPointF place = widget.rect().center();
  QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&widget, &event);
}
