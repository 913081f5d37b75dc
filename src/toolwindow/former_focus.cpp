#include "toolwindow/former_focus.h"

#include <QApplication>

namespace toolwindow {

void FormerFocus::remember(const QWidget& window) {
  if (QApplication::activeWindow() == &window) return;
  window_ = QApplication::activeWindow();
  control_ = QApplication::focusWidget();
}

void FormerFocus::giveBack(QWidget& window) const {
  hideFor(window, window_);
  if (control_ != nullptr && control_->isVisible()) control_->setFocus();
}

void hideFor(QWidget& window, QWidget* other) {
  if (other != nullptr && other->isVisible()) other->activateWindow();
  window.hide();
}

}  // namespace toolwindow
