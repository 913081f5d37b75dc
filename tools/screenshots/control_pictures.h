#pragma once

#include <functional>

#include <QPixmap>
#include <QString>

#include "mainwindows/main_window.h"

namespace screenshots {

/// Pictures of the main window's own controls in their states.
class ControlPictures {
 public:
  using Save = std::function<void(const QPixmap& picture, const QString& name)>;

  ControlPictures(mainwindows::Form1& form, Save save) : form_(form), save_(std::move(save)) {}

  /// The toolbar as it is.
  void showToolBar(const QString& name) const;
  /// All its buttons enabled; each one hovered, pressed and reached by keyboard, one strip below the other.
  void showToolBarStates() const;
  /// The progress bar in the middle of a render. `render` draws a screen that yields often enough for all pictures.
  void showProgress(const std::function<void()>& render) const;

 private:
  void pointAt(int button) const;
  void leave() const;
  void stack(const QString& name, const std::function<void(int button)>& reach) const;

  mainwindows::Form1& form_;
  Save save_;
};

}  // namespace screenshots
