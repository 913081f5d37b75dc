#include "mainwindows/main_events.h"

#include <cmath>

#include <QApplication>
#include <QDialog>
#include <QShortcut>

#include "controls/combo_box.h"
#include "controls/work_queue.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window.h"
#include "mainwindows/picture_watch.h"
#include "mainwindows/preview_hand.h"
#include "mainwindows/preview_menu.h"
#include "mainwindows/screen_refresh.h"
#include "mainwindows/theme_session.h"
#include "mainwindows/workspace.h"
#include "platform/numbers.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/colour_editor.h"

namespace mainwindows {
namespace {

class ConnectedForm1 final : public Form1 {
 public:
  explicit ConnectedForm1(const MainServices& services);

 private:
  void connectCommands();
  void connectLists();
  void connectPreview();
  void run(const CommandRow& row) { runCommand(targets_, row); }
  void end();

  PreviewHand hand_{*this};
  PictureWatch watch_{*this, hand_};
  ScreenRefresh refresh_{*this};
  const CommandTargets targets_{*this, hand_, refresh_};
};

ConnectedForm1::ConnectedForm1(const MainServices& services) : Form1(services, commandRows()) {
  queue().setOperations({
      [this] {
        hand_.settle();
        hand_.forgetPlaces();
        refresh_.list();
      },
      [this] {
        hand_.giveUpDrag();
        refresh_.draw();
        watch_.drawn();
      },
  });
  connectCommands();
  connectLists();
  connectPreview();
  connect(this, &Form1::settling, this, [this] { hand_.settle(); });
  connect(this, &Form1::objectChosen, this, [this] { hand_.showChosen(); });
  connect(this, &Form1::themeLeft, this, [this] {
    hand_.letGo();
    watch_.letGo();
    refresh_.forget();
  });
  connect(this, &Form1::closeAsked, this, [this] { end(); });
}

void ConnectedForm1::connectCommands() {
  for (const CommandRow& row : commandRows()) {
    if (row.keys.isEmpty()) continue;
    auto* shortcut = new QShortcut(QKeySequence(row.keys.toString()), this);
    shortcut->setContext(Qt::ApplicationShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, &row] { run(row); });
  }
  connect(ToolBar, &toolbar::McToolBar::Click, this, [this](int button) {
    for (const CommandRow& row : commandRows()) {
      if (row.button == button) run(row);
    }
  });
}

void ConnectedForm1::connectLists() {
  connect(Combo1, &controls::ComboBox::Click, this, [this](controls::Cause cause) {
    if (toolWindow() != nullptr) toolwindow::followScheme(*toolWindow());
    if (cause == controls::Cause::User) queue().draw();
  });
  connect(Combo2, &controls::ComboBox::Click, this, [this](controls::Cause cause) {
    if (cause != controls::Cause::User) return;
    this->services.state.SelectedButton = static_cast<quint8>(Combo2->ListIndex() + 1);
    refresh_.keepButton(this->services.state.SelectedButton);
    queue().draw();
  });
}

void ConnectedForm1::connectPreview() {
  connect(Workspace, &Workspace::MouseMove, this, [this](float X, float Y) {
    ShowMousePosition(platform::roundToInt16(std::floor(X)).value_or(0),
                      platform::roundToInt16(std::floor(Y)).value_or(0));
  });
  connect(Workspace, &Workspace::menuAsked, this, [this](const QPoint& place) {
    showPreviewMenu(*this, place, [this](Command command) {
      for (const CommandRow& row : commandRows()) {
        if (row.command == command) run(row);
      }
    });
  });
}

/// The window's end waits for a running pass and takes the place of an open dialog, which gets Cancel.
void ConnectedForm1::end() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  hand_.settle();
  queue().runOutside(
      [this] {
        hand_.settle();
        Form_Unload(*this);
      },
      controls::RunningWork::GivesWay);
  if (dialog != nullptr) dialog->reject();
}

}  // namespace

std::unique_ptr<Form1> makeForm1(const MainServices& services) {
  return std::make_unique<ConnectedForm1>(services);
}

}  // namespace mainwindows
