#include <cstdio>

#include <QApplication>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "drawing/graphics.h"
#include "mainwindows/command_line.h"
#include "mainwindows/config_file.h"
#include "mainwindows/main_events.h"
#include "mainwindows/main_window.h"
#include "platform/failure.h"
#include "themefiles/module_state.h"

namespace {

constexpr int WrongCommandLine = 2;

QStringList wordsOf(int argc, char** argv) {
  QStringList words;
  for (int word = 0; word < argc; ++word) words += QString::fromLocal8Bit(argv[word]);
  return words;
}

void print(std::FILE* stream, const QString& text) {
  std::fprintf(stream, "%s\n", text.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  // Before there is an application: that needs a display.
  if (const QString answer = mainwindows::commandLineAnswer(wordsOf(argc, argv)); !answer.isEmpty()) {
    print(stdout, answer);
    return 0;
  }
  QApplication::setDesktopSettingsAware(false);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Cantorama Theme Edit"));
  QApplication::setDesktopFileName(QStringLiteral("cantorama-theme-edit"));
  mainwindows::CommandLine commandLine;
  try {
    commandLine = mainwindows::parseCommandLine(QApplication::arguments());
  } catch (const platform::Failure& failure) {
    print(stderr, QStringLiteral("cantorama-theme-edit: ") + failure.description());
    return WrongCommandLine;
  }
  controls::applyLook(application);
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  drawing::Graphics graphics;
  const auto form = mainwindows::makeForm1({state, dialogs, graphics, mainwindows::configFolders()});
  form->config().setFolderOfThisRun(commandLine.gameFolder);
  form->show();
  return QApplication::exec();
}
