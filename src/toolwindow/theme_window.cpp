#include "toolwindow/theme_window.h"

#include <QApplication>
#include <QHideEvent>
#include <QScreen>

namespace toolwindow {

ThemeWindow::ThemeWindow(QWidget& tools) : QWidget(&tools, Qt::Tool) {
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  tools.installEventFilter(this);
}

/// The frame will be like that of the main window.
QRect ThemeWindow::room() const {
  const QWidget& main = *parentWidget()->parentWidget();
  const QSize frame = main.frameGeometry().size() - main.size();
  const QRect screen = main.screen()->availableGeometry();
  return {screen.topLeft(), screen.size() - frame};
}

void ThemeWindow::bringUp() {
  if (QApplication::activeWindow() != this) {
    window_ = QApplication::activeWindow();
    control_ = QApplication::focusWidget();
  }
  show();
  activateWindow();
  raise();
}

void ThemeWindow::goBack() {
  hideFor(window_);
  if (control_ != nullptr && control_->isVisible()) control_->setFocus();
}

void ThemeWindow::hideFor(QWidget* other) {
  const bool isThere = other != nullptr && other->isVisible();
  (isThere ? other : parentWidget())->activateWindow();
  hide();
}

void ThemeWindow::closeEvent(QCloseEvent* event) {
  goBack();
  QWidget::closeEvent(event);
}

void ThemeWindow::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) left();
}

bool ThemeWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Hide && !parentWidget()->isVisible()) hide();
  return QWidget::eventFilter(watched, event);
}

}  // namespace toolwindow
