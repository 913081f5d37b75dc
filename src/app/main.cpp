#include <QApplication>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "drawing/graphics.h"
#include "mainwindows/config_file.h"
#include "mainwindows/main_events.h"
#include "mainwindows/main_window.h"
#include "themefiles/module_state.h"

int main(int argc, char** argv) {
  QApplication::setDesktopSettingsAware(false);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Cantorama Theme Edit"));
  QApplication::setDesktopFileName(QStringLiteral("cantorama-theme-edit"));
  controls::applyLook(application);
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  drawing::Graphics graphics;
  mainwindows::Form1 form({state, dialogs, graphics, mainwindows::configFolders()});
  mainwindows::connectEvents(form);
  form.show();
  return QApplication::exec();
}
