#include "mainwindows/theme_session.h"

#include <optional>

#include <QApplication>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/modal.h"
#include "controls/twips.h"
#include "drawing/system_colours.h"
#include "editing/commit.h"
#include "mainwindows/main_window.h"
#include "mainwindows/open_theme_dialog.h"
#include "mainwindows/workspace.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "progressbar/progress_bar.h"
#include "themefiles/colour_tables.h"
#include "themefiles/module_state.h"
#include "themefiles/theme_paths.h"
#include "themefiles/working_copies.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

bool mayDropChanges(Form1& form) {
  if (!form.services.state.Changed) return true;
  const auto answer =
      form.services.dialogs.messageBox(&form, QStringLiteral("Something changed. Close without saving?"),
                                       QStringLiteral("Save"), platform::BoxKind::YesNoDefaultNo);
  return answer == platform::BoxAnswer::Yes;
}

/// Where the game is.
struct GameFolder {
  QString path;     ///< empty if the user cancels
  QString problem;  ///< the report of a folder that can't be stored
};

/// Asks for the game folder and stores it.
GameFolder askGameFolder(Form1& form) {
  const QString program = QStringLiteral("Vocora.exe");
  const QString chosen =
      form.services.dialogs.openFile(&form, {QStringLiteral("Where is the game's program file, Vocora.exe?"),
                                             QStringLiteral("Cantorama (Vocora.exe)|Vocora.exe"), program, QString()});
  if (chosen.isEmpty()) return {};
  const QString folder = chosen.left(chosen.lastIndexOf(u'\\') + 1);
  try {
    form.config().setGameFolder(folder);
  } catch (const platform::Failure& failure) {
    const QString problem =
        platform::reportText(QStringLiteral("The game folder can't be kept in config.ini"), failure.description());
    form.ShowStatus(problem);
    return {folder, problem};
  }
  return {folder, {}};
}

/// The stored game folder, or the one that the user is asked for.
GameFolder findGameFolder(Form1& form) {
  const QString stored = form.config().gameFolder();
  if (stored.isEmpty() || !platform::folderHoldsFiles(stored)) return askGameFolder(form);
  return {stored, {}};
}

/// Makes the working copies of the choice and opens them; a failure is reported.
bool openCopies(Form1& form, const themefiles::ThemePaths& chosen) {
  return platform::guarded(form, QStringLiteral("Error while saving temporary files"),
                           [&] { themefiles::MakeWorkingCopies(form.services.state, chosen, form); });
}

/// What is lost of an editor, or left out by Save.
QString untakenIn(const Form1& form) {
  return form.toolWindow() == nullptr ? QString() : form.toolWindow()->pendingChanges();
}

void noteUntaken(Form1& form, const QString& untaken) {
  if (!untaken.isEmpty()) form.note(untaken);
}

void hideMark(Form1& form) {
  form.Workspace->setBlinking(false);
  form.Workspace->SetVisible(false);
}

/// What an earlier theme has left when another one takes its place.
void dropEarlierTheme(Form1& form) {
  themefiles::ModuleState& state = form.services.state;
  form.queue().forget();
  hideMark(form);
  form.unloadToolWindow();
  state.ThemeColors = {};
  state.ScreenTable = {};
  state.Changed = false;
  form.enableCommand(Command::Save, false);
}

void showToolWindow(Form1& form) {
  form.setToolWindow(new toolwindow::Form2({.session = form.session(),
                                            .dialogs = form.services.dialogs,
                                            .Workspace = form.Workspace->surface(),
                                            .mark = *form.Workspace,
                                            .queue = form.queue(),
                                            .schemeName = [&form] { return form.schemes().Text(); }},
                                           &form));
  // The lower right corner of the main window, by the outer sizes of both.
  const double formRight =
      form.x() * controls::TwipsPerPixel + form.width() * controls::TwipsPerPixel + controls::FrameWidth;
  const double formBottom =
      form.y() * controls::TwipsPerPixel + form.height() * controls::TwipsPerPixel + controls::FrameHeight;
  const toolwindow::ToolLayout& layout = form.toolWindow()->layout();
  form.toolWindow()->move(controls::toPixels(formRight - layout.Width - 200),
                          controls::toPixels(formBottom - layout.Height - 450));
  form.toolWindow()->show();
  form.Workspace->setFocusPolicy(Qt::StrongFocus);
}

void ReadTheme(Form1& form) {
  platform::guarded(form, QStringLiteral("Error while reading Theme"), [&] {
    form.leaveStartPicture();
    themefiles::ReadColors(form.services.state, form);
    controls::ComboBox& schemes = form.schemes();
    schemes.Clear();
    for (const QString& scheme : themefiles::schemeNames(form.services.state)) schemes.AddItem(scheme);
    schemes.SetListIndex(0);
    form.toolWindow()->start();
  });
}

void openFrom(Form1& form, GameFolder (*folderOf)(Form1& form)) {
  platform::guardedSilently([&] {
    if (!mayDropChanges(form)) return;
    const GameFolder gameFolder = folderOf(form);
    if (gameFolder.path.isEmpty()) return;
    const QStringList themes = themefiles::themesOf(gameFolder.path);
    const auto noteProblem = [&] {
      if (!gameFolder.problem.isEmpty()) form.note(gameFolder.problem);
    };
    if (themes.isEmpty()) {
      form.services.dialogs.messageBox(&form, QStringLiteral("No Themes Found"), QStringLiteral("Error"),
                                       platform::BoxKind::Error);
      const platform::ReportScope ending(form);
      noteProblem();
      form.ShowStatus(QStringLiteral("Ctrl+Shift+O asks for another game folder"));
      return;
    }
    std::optional<platform::ReportScope> scope;
    const auto open = [&](const themefiles::ThemePaths& chosen) {
      scope.reset();  // drops the notes of an attempt that failed
      scope.emplace(form);
      return openCopies(form, chosen);
    };
    Form3 dialog(gameFolder.path, themes, open, &form);
    if (controls::runModal(dialog) != QDialog::Accepted) return;
    const QString untaken = untakenIn(form);
    dropEarlierTheme(form);
    showToolWindow(form);
    ReadTheme(form);
    form.enableCommand(Command::Close, true);
    form.enableCommand(Command::BackgroundColor, true);
    form.schemes().show();
    const QStringList opened{dialog.themes().Text(), dialog.skins().Text(), dialog.languages().Text()};
    noteProblem();
    scope->success(opened.join(QStringLiteral(", ")));
    noteUntaken(form, untaken);
  });
}

}  // namespace

void OpenTheme(Form1& form) {
  openFrom(form, findGameFolder);
}

void openAnotherFolder(Form1& form) {
  openFrom(form, askGameFolder);
}

void SaveTheme(Form1& form) {
  platform::guarded(form, QStringLiteral("Error while saving files"), [&] {
    platform::ReportScope scope(form);
    int values = 0;
    platform::guardedSilently([&] { values = editing::countDifferences(form.services.state); });
    themefiles::saveWorkingCopies(form.services.state, form);
    form.enableCommand(Command::Save, false);
    scope.success(values == 0 ? QStringLiteral("Saved") : QStringLiteral("Saved, ") + editing::countOf(values));
    noteUntaken(form, untakenIn(form));
  });
  // A Save that failed may have copied some of the files.
  Q_EMIT form.session().differencesDue();
}

void CloseTheme(Form1& form) {
  platform::ReportScope scope(form);
  if (!mayDropChanges(form)) return;
  const QString untaken = untakenIn(form);
  form.queue().forget();
  themefiles::forgetTheme(form.services.state);
  hideMark(form);
  for (QWidget* control : std::initializer_list<QWidget*>{&form.schemes(), &form.buttons(), form.ProgressBar1}) {
    control->hide();
  }
  form.unloadToolWindow();
  form.showStartPicture(drawing::ButtonFaceColor);
  for (const Command command : {Command::Save, Command::Close, Command::BackgroundColor}) {
    form.enableCommand(command, false);
  }
  scope.success(QStringLiteral("Closed"));
  noteUntaken(form, untaken);
}

void ChooseBackgroundColor(Form1& form) {
  platform::guardedSilently([&] {
    quint32& background = form.services.state.BackgroundColor;
    const auto color = form.services.dialogs.chooseColor(&form, drawing::colorOf(background));
    if (!color) return;
    background = drawing::colorValue(*color);
    form.queue().draw();
  });
}

void Form_Unload(Form1& form) {
  form.queue().forget();
  form.Workspace->setBlinking(false);
  form.unloadToolWindow();
  form.hide();
  QApplication::quit();
}

}  // namespace mainwindows
