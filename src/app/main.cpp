#include <QApplication>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "mainwindows/config_file.h"
#include "mainwindows/main_events.h"
#include "mainwindows/main_window.h"
#include "platform/graphics.h"
#include "themefiles/module_state.h"

int main(int argc, char** argv) {
  QApplication::setDesktopSettingsAware(false);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Cantorama Theme Edit"));
  QApplication::setDesktopFileName(QStringLiteral("cantorama-theme-edit"));
  controls::ApplyLook(application);
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  platform::Graphics graphics;
  mainwindows::Form1 form({state, dialogs, graphics, mainwindows::ConfigFolders()});
  mainwindows::ConnectEvents(form);
  form.show();
  return QApplication::exec();
}
