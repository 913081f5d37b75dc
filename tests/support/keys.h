#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

namespace support {

/// Presses and releases a key as menus tell it, "Ctrl+End"; behind "held " it comes once, as one that repeats.
inline void pressKey(QWidget& widget, const QString& told) {
  const bool held = told.startsWith(u"held ");
  const QKeyCombination key = QKeySequence(held ? told.sliced(5) : told)[0];
  if (!held) return QTest::keyClick(&widget, key.key(), key.keyboardModifiers());
  QKeyEvent event(QEvent::KeyPress, key.key(), key.keyboardModifiers(), {}, true);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace support
