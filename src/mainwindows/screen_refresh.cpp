#include "mainwindows/screen_refresh.h"

#include <utility>

#include "mainwindows/main_window.h"
#include "toolwindow/object_selection.h"

namespace mainwindows {
namespace {

/// Selects the button that was selected before the list of buttons was filled anew, and has it drawn so.
void selectButtonAgain(Form1& form, quint8 button) {
  if (button == form.services.state.SelectedButton || button > form.Combo2->ListCount()) return;
  form.services.state.SelectedButton = button;
  form.Combo2->SetListIndex(button - 1);
  form.queue.draw();
}

}  // namespace

void refreshScreen(Form1& form) {
  if (form.toolWindow == nullptr) return;
  form.pictures.clear();
  const QString screen = form.toolWindow->Combo1->Text();
  // While an earlier wish is on its way, its choices are those to keep: the lists may be empty.
  if (!form.kept || form.kept->screen != screen) {
    form.kept = {screen, form.toolWindow->List1->Text(), form.services.state.SelectedButton};
  }
  form.queue.choose();
}

void listScreen(Form1& form) {
  form.picking = {};
  if (form.toolWindow == nullptr) return;
  if (form.kept && form.kept->screen != form.toolWindow->Combo1->Text()) form.kept.reset();
  toolwindow::listScreen(*form.toolWindow, form.kept ? form.kept->object : QString());
}

void drawScreen(Form1& form) {
  form.DrawScreen();
  if (const auto kept = std::exchange(form.kept, {})) selectButtonAgain(form, kept->button);
}

}  // namespace mainwindows
