#include "mainwindows/screen_refresh.h"

#include <utility>

#include "controls/combo_box.h"
#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "themefiles/module_state.h"

namespace mainwindows {
namespace {

constexpr quint8 FirstButton = 1;

}  // namespace

void ScreenRefresh::list() {
  editing::Session& session = form_.session();
  if (!session.isOpen()) return;
  if (kept_ && kept_->screen != session.screen()) kept_.reset();
  session.listObjects(kept_ ? kept_->object : QString(), [this] { form_.queue().yield(); });
}

void ScreenRefresh::draw() {
  form_.DrawScreen();
  if (const auto kept = std::exchange(kept_, {})) selectButtonAgain(kept->button);
}

void ScreenRefresh::refresh() {
  const editing::Session& session = form_.session();
  if (!session.isOpen()) return;
  form_.forgetPictures();
  const QString& screen = session.screen();
  // If an earlier refresh hasn't ended, its choices are kept: the lists may be empty now.
  if (!kept_ || kept_->screen != screen) {
    // Until a screen's list of buttons is filled, the selected one is that of the screen before.
    const themefiles::ModuleState& state = form_.services.state;
    const bool isOfScreen = session.listIsComplete() && state.ButtonListFilled;
    kept_ = {screen, session.object(), isOfScreen ? state.SelectedButton : FirstButton};
  }
  form_.queue().choose();
}

void ScreenRefresh::keepButton(quint8 button) {
  if (kept_) kept_->button = button;
}

/// Selects the button that was selected before the list of buttons was filled anew, and has it drawn so.
void ScreenRefresh::selectButtonAgain(quint8 button) {
  if (button == form_.services.state.SelectedButton || button > form_.buttons().ListCount()) return;
  form_.services.state.SelectedButton = button;
  form_.buttons().SetListIndex(button - 1);
  form_.queue().draw();
}

}  // namespace mainwindows
