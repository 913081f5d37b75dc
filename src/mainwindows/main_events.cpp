#include "mainwindows/main_events.h"

#include <array>
#include <cmath>
#include <functional>

#include <QApplication>
#include <QDialog>
#include <QShortcut>

#include "mainwindows/main_window.h"
#include "mainwindows/preview_hand.h"
#include "mainwindows/preview_menu.h"
#include "mainwindows/screen_refresh.h"
#include "mainwindows/theme_session.h"
#include "platform/numbers.h"
#include "toolbar/button_values.h"
#include "toolwindow/finder_window.h"
#include "toolwindow/object_selection.h"

namespace mainwindows {
namespace {

/// A command of the toolbar.
struct CommandRow {
  void (*run)(Form1& form);
  bool atOnce;           ///< runs in the middle of a render, too
  QStringView shortcut;  ///< empty for none
};

// Buttons 1 to 4.
constexpr std::array<CommandRow, 4> Commands{{
    {OpenTheme, false, u"Ctrl+O"},
    {SaveTheme, true, u"Ctrl+S"},
    {CloseTheme, false, u"Ctrl+W"},
    {ChooseBackgroundColor, false, {}},
}};

/// A theme without changes closes without a question: a running render is given up for it.
bool leavesAtOnce(const Form1& form, const CommandRow& command) {
  return command.run == CloseTheme && !form.services.state.Changed;
}

void run(Form1& form, int button) {
  const CommandRow& command = Commands.at(button - 1);
  form.hand->settle();
  if (command.atOnce) {
    command.run(form);
    return;
  }
  const auto ifStillEnabled = [&form, button, &command] {
    form.hand->settle();
    if (form.ToolBar->GetButtonValue(button, toolbar::EnabledProperty).toBool()) command.run(form);
  };
  form.queue.runOutside(ifStillEnabled, leavesAtOnce(form, command));
}

/// The window's end waits for a running pass and takes the place of an open dialog, which gets Cancel.
void end(Form1& form) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  form.hand->settle();
  form.queue.runOutside(
      [&form] {
        form.hand->settle();
        Form_Unload(form);
      },
      true);
  if (dialog != nullptr) dialog->reject();
}

void onShortcut(Form1& form, const QKeySequence& keys, const std::function<void()>& act) {
  auto* shortcut = new QShortcut(keys, &form);
  shortcut->setContext(Qt::ApplicationShortcut);
  QObject::connect(shortcut, &QShortcut::activated, &form, act);
}

void connectToolBar(Form1& form) {
  QObject::connect(form.ToolBar, &toolbar::McToolBar::Click, &form, [&form](int button) { run(form, button); });
  for (size_t i = 0; i < Commands.size(); ++i) {
    if (Commands.at(i).shortcut.isEmpty()) continue;
    const int button = static_cast<int>(i) + 1;
    onShortcut(form, QKeySequence(Commands.at(i).shortcut.toString()), [&form, button] {
      form.hand->settle();
      if (form.ToolBar->GetButtonValue(button, toolbar::EnabledProperty).toBool()) run(form, button);
    });
  }
}

/// The keyboard's way from one window to the other.
void goToOtherWindow(Form1& form) {
  QWidget* other = form.toolWindow != nullptr && form.isActiveWindow() ? form.toolWindow : static_cast<QWidget*>(&form);
  other->activateWindow();
  other->raise();
}

}  // namespace

void connectEvents(Form1& form) {
  form.hand = new PreviewHand(form);
  form.queue.setWorks(
      [&form] {
        form.hand->settle();
        listScreen(form);
      },
      [&form] {
        form.hand->giveUpDrag();
        drawScreen(form);
      });
  connectToolBar(form);
  onShortcut(form, QKeySequence(QStringLiteral("Ctrl+Shift+O")), [&form] {
    form.hand->settle();
    askAnotherFolder(form);
  });
  onShortcut(form, QKeySequence(Qt::Key_F5), [&form] {
    form.hand->settle();
    refreshScreen(form);
  });
  QObject::connect(form.Workspace, &Workspace::menuAsked, &form,
                   [&form](const QPoint& place) { showPreviewMenu(form, place); });
  onShortcut(form, QKeySequence(Qt::Key_F6), [&form] { goToOtherWindow(form); });
  QObject::connect(&form, &Form1::closeAsked, &form, [&form] { end(form); });
  onShortcut(form, QKeySequence(QStringLiteral("Ctrl+F")), [&form] {
    if (form.toolWindow != nullptr) toolwindow::showFinder(*form.toolWindow);
  });
  QObject::connect(form.Combo1, &controls::ComboBox::Click, &form, [&form](controls::Cause cause) {
    if (cause == controls::Cause::User) form.queue.draw();
  });
  QObject::connect(form.Combo2, &controls::ComboBox::Click, &form, [&form](controls::Cause cause) {
    if (cause != controls::Cause::User) return;
    form.services.state.SelectedButton = static_cast<quint8>(form.Combo2->ListIndex() + 1);
    if (form.kept) form.kept->button = form.services.state.SelectedButton;
    form.queue.draw();
  });
  QObject::connect(form.Workspace, &Workspace::MouseMove, &form, [&form](float X, float Y) {
    form.ShowMousePosition(platform::roundToInt16(std::floor(X)).value_or(0),
                           platform::roundToInt16(std::floor(Y)).value_or(0));
  });
}

}  // namespace mainwindows
