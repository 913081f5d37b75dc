#include "mainwindows/trial_picture.h"

#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "renderer/render_context.h"
#include "renderer/trial_drawing.h"
#include "themefiles/module_state.h"

namespace mainwindows {

void TrialPicture::show(const renderer::TrialValues& values) {
  Workspace& preview = *form_.Workspace;
  if (!shown_) shown_ = Shown{preview.surface().image(), {}};
  platform::guardedSilently([&] { renderer::drawTrial(form_.renderContext(), values, shown_->files); });
  renderer::drawTrialCursor(form_.services.state, form_.session().objects(), preview.surface(), preview, values);
  preview.Refresh();
}

void TrialPicture::putBack() {
  if (!form_.session().isOpen()) return;
  Workspace& preview = *form_.Workspace;
  if (shown_) preview.surface().putBack(shown_->before);
  forget();
  form_.renderContext().pictures->letGo();
  renderer::drawTrialCursor(form_.services.state, form_.session().objects(), preview.surface(), preview, {});
  preview.Refresh();
}

}  // namespace mainwindows
