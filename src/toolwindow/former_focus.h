#pragma once

#include <QPointer>
#include <QWidget>

namespace toolwindow {

/// Who has had the keyboard before a window came up, and gets it back when that goes.
class FormerFocus {
 public:
  /// The window is about to come up.
  void remember(const QWidget& window);
  void giveBack(QWidget& window) const;

 private:
  QPointer<QWidget> window_, control_;
};

/// Hides a window. Gives the keyboard to another one before: a window manager would give it to the main window.
void hideFor(QWidget& window, QWidget* other);

}  // namespace toolwindow
