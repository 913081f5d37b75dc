#pragma once

#include <functional>

#include <QApplication>
#include <QShortcut>
#include <QTimer>

#include "mainwindows/editor.h"
#include "mainwindows/open_theme_dialog.h"
#include "platform/paths.h"
#include "sample_screens.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/tool_window.h"

namespace bench {

/// The program's main window on a copy of the sample game, with a theme open in it and a screen chosen. `addFiles` may
/// put a theme into the copy before.
struct OpenEditor {
  OpenEditor(
      const QString& theme, const QString& screen,
      const std::function<void(const QString& folder)>& addFiles = [](const QString&) {})
      : whole({state, boxes, graphics, {platform::programPath(settings.path())}}), form(whole.form) {
    addFiles(game.path());
    form.config().setGameFolder(platform::programPath(game.path()) + u'\\');
    form.show();
    QTimer::singleShot(0, &form, [&theme] {
      auto& dialog = dynamic_cast<mainwindows::Form3&>(*QApplication::activeModalWidget());
      dialog.themes().SetListIndex(dialog.themes().row(dialog.themes().findItems(theme, Qt::MatchExactly).first()));
      dialog.openButton().click();
    });
    Q_EMIT form.ToolBar->Click(1);
    choose(screen);
  }

  /// Lists and draws the screen.
  void choose(const QString& screen) const {
    form.toolWindow()->screens().SetText(screen);
    QApplication::processEvents();
  }

  /// Opens the windows that go over the whole theme: what is wrong, and the screen side by side.
  void showWholeTheme() const {
    const QList<QKeySequence> keys{QKeySequence(QStringLiteral("Ctrl+Shift+K")),
                                   QKeySequence(QStringLiteral("Ctrl+B"))};
    for (QShortcut* shortcut : form.findChildren<QShortcut*>()) {
      if (keys.contains(shortcut->key())) Q_EMIT shortcut->activated();
    }
  }

  CopiedSample game;
  QTemporaryDir settings;
  themefiles::ModuleState state;
  support::ScriptedDialogs boxes;
  drawing::Graphics graphics;
  mainwindows::Editor whole;
  mainwindows::Form1& form;
};

}  // namespace bench
