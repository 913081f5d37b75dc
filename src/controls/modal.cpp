#include "controls/modal.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>

namespace controls {

int runModal(QDialog& dialog) {
  QPointer<QWidget> window = QApplication::activeWindow();
  const QPointer<QWidget> control = QApplication::focusWidget();
  // If another dialog has just been closed, no window is active yet.
  if (window == nullptr || !window->isVisible()) window = dialog.parentWidget();
  const int result = dialog.exec();
  if (window != nullptr && window->isVisible()) window->activateWindow();
  if (control != nullptr && control->isVisible()) control->setFocus();
  return result;
}

}  // namespace controls
