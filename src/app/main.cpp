#include <cstdio>

#include <QApplication>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "drawing/graphics.h"
#include "mainwindows/command_line.h"
#include "mainwindows/config_file.h"
#include "mainwindows/editor.h"
#include "platform/console.h"
#include "platform/failure.h"
#include "themefiles/module_state.h"

namespace {

constexpr int WrongCommandLine = 2;

/// On Windows texts are drawn as everywhere else, not by the system, and the windows stay light.
void choosePlatform() {
#ifdef Q_OS_WIN
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "windows:fontengine=freetype:darkmode=0");
  }
#endif
}

}  // namespace

int main(int argc, char** argv) {
  platform::prepareOutput();
  // Before there is an application: that needs a display.
  if (const QString answer = mainwindows::commandLineAnswer(platform::commandLineWords(argc, argv));
      !answer.isEmpty()) {
    platform::print(stdout, answer);
    return 0;
  }
  choosePlatform();
  QApplication::setDesktopSettingsAware(false);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Cantorama Theme Edit"));
  QApplication::setDesktopFileName(QStringLiteral("cantorama-theme-edit"));
  mainwindows::CommandLine commandLine;
  try {
    commandLine = mainwindows::parseCommandLine(QApplication::arguments());
  } catch (const platform::Failure& failure) {
    platform::print(stderr, QStringLiteral("cantorama-theme-edit: ") + platform::onOneLine(failure.description()));
    return WrongCommandLine;
  }
  controls::applyLook(application);
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  drawing::Graphics graphics;
  mainwindows::Editor editor({state, dialogs, graphics, mainwindows::configFolders()});
  editor.form.config().setFolderOfThisRun(commandLine.gameFolder);
  editor.form.show();
  return QApplication::exec();
}
