#include "mainwindows/theme_session.h"

#include <optional>

#include <QApplication>

#include "controls/modal.h"
#include "controls/twips.h"
#include "mainwindows/main_window.h"
#include "mainwindows/open_theme_dialog.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/system_colors.h"
#include "themefiles/colour_tables.h"
#include "themefiles/theme_paths.h"
#include "themefiles/working_copies.h"
#include "toolwindow/tool_events.h"

namespace mainwindows {
namespace {

constexpr int SaveButton = 2;
constexpr int CloseButton = 3;
constexpr int BackgroundButton = 4;

bool mayDropChanges(Form1& form) {
  if (!form.Services.State.Changed) return true;
  const auto answer =
      form.Services.Dialogs.MessageBox(&form, QStringLiteral("Something changed. Close without saving?"),
                                       QStringLiteral("Save"), platform::BoxKind::YesNoDefaultNo);
  return answer == platform::BoxAnswer::Yes;
}

/// The stored game folder, or the one that the user points at, which is then stored; empty when there is none.
QString findGameFolder(Form1& form) {
  const QString stored = form.Config.GameFolder();
  if (!stored.isEmpty() && platform::FolderHoldsFiles(stored)) return stored;
  const QString program = QStringLiteral("Vocora.exe");
  const QString chosen =
      form.Services.Dialogs.OpenFile(&form, {QStringLiteral("Where is the game's program file, Vocora.exe?"),
                                             QStringLiteral("Cantorama (Vocora.exe)|Vocora.exe"), program, QString()});
  if (chosen.isEmpty()) return {};
  const QString folder = chosen.left(chosen.lastIndexOf(u'\\') + 1);
  platform::Guarded(form, QStringLiteral("The game folder can't be kept in config.ini"),
                    [&] { form.Config.SetGameFolder(folder); });
  return folder;
}

/// Makes the working copies of the choice and opens them; a failure is reported.
bool openCopies(Form1& form, const themefiles::ThemePaths& chosen) {
  return platform::Guarded(form, QStringLiteral("Error while saving temporary files"),
                           [&] { themefiles::MakeWorkingCopies(form.Services.State, chosen, form); });
}

/// The tool window goes when control is back in the event loop: one of its own events may be on the way.
void unloadToolWindow(Form1& form) {
  if (form.ToolWindow == nullptr) return;
  form.ToolWindow->hide();
  form.ToolWindow->deleteLater();
  form.ToolWindow = nullptr;
  form.Services.State.EditorShown = false;
}

void hideMark(Form1& form) {
  form.Workspace->SetBlinking(false);
  form.Workspace->SetVisible(false);
}

/// What an earlier theme has left when another one takes its place.
void dropEarlierTheme(Form1& form) {
  themefiles::ModuleState& state = form.Services.State;
  form.Queue.Forget();
  hideMark(form);
  unloadToolWindow(form);
  state.ThemeColors = {};
  state.ScreenTable = {};
  state.Changed = false;
  form.EnableButton(SaveButton, false);
}

void showToolWindow(Form1& form) {
  form.ToolWindow = new toolwindow::Form2(
      {form.Services.State, form, form.Services.Dialogs, form.Workspace->Surface(), *form.Workspace, form.Queue,
       [&form] { form.EnableButton(SaveButton, true); }, [&form] { return form.Combo1->Text(); }},
      &form);
  toolwindow::ConnectEvents(*form.ToolWindow);
  // The lower right corner of the main window, by the outer sizes of both.
  const double formRight =
      form.x() * controls::TwipsPerPixel + form.width() * controls::TwipsPerPixel + controls::FrameWidth;
  const double formBottom =
      form.y() * controls::TwipsPerPixel + form.height() * controls::TwipsPerPixel + controls::FrameHeight;
  const toolwindow::ToolLayout& layout = form.ToolWindow->Layout();
  form.ToolWindow->move(controls::ToPixels(formRight - layout.Width - 200),
                        controls::ToPixels(formBottom - layout.Height - 450));
  form.ToolWindow->show();
}

void ReadTheme(Form1& form) {
  platform::Guarded(form, QStringLiteral("Error while reading Theme"), [&] {
    form.Label1->hide();
    form.Label2->hide();
    themefiles::ReadColors(form.Services.State, form);
    form.Combo1->Clear();
    for (const QString& scheme : themefiles::SchemeNames(form.Services.State)) form.Combo1->AddItem(scheme);
    form.Combo1->SetListIndex(0);
    toolwindow::Form2& tools = *form.ToolWindow;
    for (QWidget* control : std::initializer_list<QWidget*>{tools.Combo1, tools.List1, tools.ListView1}) {
      control->setEnabled(true);
    }
    tools.activateWindow();
    tools.Combo1->setFocus();
    tools.Combo1->SetListIndex(0);
  });
}

}  // namespace

void OpenTheme(Form1& form) {
  platform::GuardedSilently([&] {
    if (!mayDropChanges(form)) return;
    const QString gameFolder = findGameFolder(form);
    if (gameFolder.isEmpty()) return;
    const QStringList themes = themefiles::ThemesOf(gameFolder);
    if (themes.isEmpty()) {
      form.Services.Dialogs.MessageBox(&form, QStringLiteral("No Themes Found"), QStringLiteral("Error"),
                                       platform::BoxKind::Error);
      return;
    }
    std::optional<platform::Telling> telling;
    const auto open = [&](const themefiles::ThemePaths& chosen) {
      telling.reset();  // what an attempt that failed had to tell is over
      telling.emplace(form);
      return openCopies(form, chosen);
    };
    Form3 dialog(gameFolder, themes, open, &form);
    if (controls::runModal(dialog) != QDialog::Accepted) return;
    dropEarlierTheme(form);
    showToolWindow(form);
    ReadTheme(form);
    form.EnableButton(CloseButton, true);
    form.EnableButton(BackgroundButton, true);
    form.Combo1->show();
    const QStringList opened{dialog.List1->Text(), dialog.List2->Text(), dialog.Combo1->Text()};
    telling->success(opened.join(QStringLiteral(", ")));
  });
}

void SaveTheme(Form1& form) {
  platform::Guarded(form, QStringLiteral("Error while saving files"), [&] {
    platform::Telling telling(form);
    themefiles::SaveWorkingCopies(form.Services.State, form);
    form.EnableButton(SaveButton, false);
    telling.success(QStringLiteral("Saved"));
    form.ToolWindow->Marking.start();
  });
}

void CloseTheme(Form1& form) {
  platform::Telling telling(form);
  if (!mayDropChanges(form)) return;
  form.Queue.Forget();
  themefiles::ForgetTheme(form.Services.State);
  hideMark(form);
  for (QWidget* control : std::initializer_list<QWidget*>{form.Combo1, form.Combo2, form.ProgressBar1}) {
    control->hide();
  }
  unloadToolWindow(form);
  form.ShowStartPicture(platform::ButtonFaceColor);
  for (const int button : {SaveButton, CloseButton, BackgroundButton}) form.EnableButton(button, false);
  telling.success(QStringLiteral("Closed"));
}

void ChooseBackgroundColor(Form1& form) {
  platform::GuardedSilently([&] {
    quint32& background = form.Services.State.BackgroundColor;
    const auto color = form.Services.Dialogs.ChooseColor(&form, platform::ColorOf(background));
    if (!color) return;
    background = platform::ColorValue(*color);
    form.Queue.Draw();
  });
}

void Form_Unload(Form1& form) {
  form.Queue.Forget();
  form.Workspace->SetBlinking(false);
  unloadToolWindow(form);
  form.hide();
  QApplication::quit();
}

}  // namespace mainwindows
