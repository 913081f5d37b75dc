#pragma once

#include <QString>

#include "control_pictures.h"
#include "mainwindows/main_window.h"
#include "modal_script.h"

namespace screenshots {

/// Goes through the program as a user would, on a theme of the game folder, and saves a picture of each window on the
/// way. Throws platform::Failure when something that it needs isn't there.
class Session {
 public:
  Session(mainwindows::Form1& form, QString outputFolder);

  void run();

 private:
  void openTheme();
  void showScreen(const QString& name);
  void showDrags();
  void showDrag(const QPoint& from, const QPoint& by, const QString& name);
  void showLoupe();
  void showEditors();
  void showColorBoxes();
  void showKeyBoxes();
  void showLists();
  void showCloseQuestion();
  void save(QWidget& window, const QString& name) const;
  void savePicture(const QPixmap& picture, const QString& name) const;
  void saveScreen(const QString& name) const;

  mainwindows::Form1& form_;
  QString folder_;
  ModalScript dialogs_;
  ControlPictures controls_;
};

}  // namespace screenshots
