#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "drawing/graphics.h"
#include "mainwindows/editor.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "session.h"
#include "themefiles/module_state.h"

/// cantorama-screenshots GAME_FOLDER OUTPUT_FOLDER: opens the first theme of the folder and saves the pictures.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QCommandLineParser parser;
  const bool isRead = parser.parse(QApplication::arguments());
  const QStringList folders = parser.positionalArguments();
  if (!isRead || folders.size() != 2 || !QDir().mkpath(folders[1]) || !QDir(folders[0]).exists()) {
    std::fputs("usage: cantorama-screenshots GAME_FOLDER OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  controls::applyLook(application);
  const QTemporaryDir configFolder;
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  drawing::Graphics graphics;
  mainwindows::Editor editor({state, dialogs, graphics, {platform::programPath(configFolder.path())}});
  try {
    const QString output = QDir(folders[1]).absolutePath();
    // The dialog for the game's program file opens there.
    QDir::setCurrent(folders[0]);
    screenshots::Session(editor.form, output).run();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "cantorama-screenshots: %s\n", failure.what());
    return 2;
  }
  return 0;
}
