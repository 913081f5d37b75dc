#include "mainwindows/screen_refresh.h"

#include <utility>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "themefiles/module_state.h"
#include "toolwindow/object_selection.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

constexpr quint8 FirstButton = 1;

}  // namespace

void ScreenRefresh::list() {
  toolwindow::Form2* tools = form_.toolWindow();
  if (tools == nullptr) return;
  if (kept_ && kept_->screen != tools->Combo1->Text()) kept_.reset();
  toolwindow::listScreen(*tools, kept_ ? kept_->object : QString());
}

void ScreenRefresh::draw() {
  form_.DrawScreen();
  if (const auto kept = std::exchange(kept_, {})) selectButtonAgain(kept->button);
}

void ScreenRefresh::refresh() {
  const toolwindow::Form2* tools = form_.toolWindow();
  if (tools == nullptr) return;
  form_.forgetPictures();
  const QString screen = tools->Combo1->Text();
  // If an earlier refresh hasn't ended, its choices are kept: the lists may be empty now.
  if (!kept_ || kept_->screen != screen) {
    // Until a screen's list of buttons is filled, the selected one is that of the screen before.
    const themefiles::ModuleState& state = form_.services.state;
    kept_ = {screen, tools->List1->Text(), state.ButtonListFilled ? state.SelectedButton : FirstButton};
  }
  form_.queue().choose();
}

void ScreenRefresh::keepButton(quint8 button) {
  if (kept_) kept_->button = button;
}

/// Selects the button that was selected before the list of buttons was filled anew, and has it drawn so.
void ScreenRefresh::selectButtonAgain(quint8 button) {
  if (button == form_.services.state.SelectedButton || button > form_.Combo2->ListCount()) return;
  form_.services.state.SelectedButton = button;
  form_.Combo2->SetListIndex(button - 1);
  form_.queue().draw();
}

}  // namespace mainwindows
