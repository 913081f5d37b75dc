#include "mainwindows/editor.h"

#include <cmath>

#include <QApplication>
#include <QDialog>
#include <QShortcut>

#include "controls/combo_box.h"
#include "controls/work_queue.h"
#include "mainwindows/commands.h"
#include "mainwindows/group_frames.h"
#include "mainwindows/preview_menu.h"
#include "mainwindows/side_by_side.h"
#include "mainwindows/theme_session.h"
#include "mainwindows/workspace.h"
#include "platform/numbers.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {

Editor::Editor(const MainServices& services) : form(services, commandRows()) {
  connectQueue();
  connectCommands();
  connectLists();
  connectPreview();
  connectSession();
  QObject::connect(&form, &Form1::closeAsked, &form, [this] { end(); });
}

void Editor::connectQueue() {
  form.queue().setOperations({
      [this] {
        form.session().settle();
        hand_.forgetPlaces();
        refresh_.list();
      },
      [this] {
        hand_.giveUpDrag();
        refresh_.draw();
        showGroupFrames(form, form.account());
        watch_.drawn();
        renewSideBySide(form);
      },
  });
}

void Editor::connectSession() {
  using editing::Session;
  const Session& session = form.session();
  QObject::connect(&session, &Session::settling, &form, [this] { hand_.settle(); });
  QObject::connect(&session, &Session::objectChosen, &form, [this] { hand_.showChosen(); });
  QObject::connect(&session, &Session::membersChanged, &form, [this] {
    if (form.session().isOpen()) form.session().settle();
    showGroupFrames(form, form.account());
    groupReport_.tell();
  });
  QObject::connect(&session, &Session::changed, &form, [this] { form.enableCommand(Command::Save, true); });
  QObject::connect(&review_, &ThemeReview::goalChosen, &form, [this](const themefiles::Hit& goal) {
    if (form.toolWindow() != nullptr) form.toolWindow()->goTo(goal);
  });
  QObject::connect(&session, &Session::ended, &form, [this] {
    hand_.letGo();
    watch_.letGo();
    refresh_.forget();
  });
}

void Editor::run(const CommandRow& row) {
  runCommand(targets_, row);
}

void Editor::connectCommands() {
  for (const CommandRow& row : commandRows()) {
    if (row.keys.isEmpty()) continue;
    auto* shortcut = new QShortcut(QKeySequence(row.keys.toString()), &form);
    shortcut->setContext(Qt::ApplicationShortcut);
    // What waits would come up once for each time a held key repeats.
    shortcut->setAutoRepeat(row.time != CommandTime::Waits);
    QObject::connect(shortcut, &QShortcut::activated, &form, [this, &row] { run(row); });
  }
  QObject::connect(form.ToolBar, &toolbar::McToolBar::Click, &form, [this](int button) {
    for (const CommandRow& row : commandRows()) {
      if (row.button == button) run(row);
    }
  });
}

void Editor::connectLists() {
  QObject::connect(&form.schemes(), &controls::ComboBox::Click, &form, [this](controls::Cause cause) {
    Q_EMIT form.session().colorsChanged();
    if (cause == controls::Cause::User) form.queue().draw();
  });
  QObject::connect(&form.buttons(), &controls::ComboBox::Click, &form, [this](controls::Cause cause) {
    if (cause != controls::Cause::User) return;
    quint8& selected = form.services.state.SelectedButton;
    selected = static_cast<quint8>(form.buttons().ListIndex() + 1);
    refresh_.keepButton(selected);
    form.queue().draw();
  });
}

void Editor::connectPreview() {
  QObject::connect(form.Workspace, &Workspace::MouseMove, &form, [this](float X, float Y) {
    form.ShowMousePosition(platform::roundToInt16(std::floor(X)).value_or(0),
                           platform::roundToInt16(std::floor(Y)).value_or(0));
  });
  QObject::connect(form.Workspace, &Workspace::menuAsked, &form, [this](const QPoint& place) {
    showPreviewMenu(form, place, hand_.guidesOn(), [this](const CommandRow& row) { run(row); });
  });
}

/// The window's end waits for a running pass and takes the place of an open dialog, which gets Cancel.
void Editor::end() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  form.session().settle();
  form.queue().runOutside(
      [this] {
        form.session().settle();
        Form_Unload(form);
      },
      controls::RunningWork::GivesWay);
  if (dialog != nullptr) dialog->reject();
}

}  // namespace mainwindows
