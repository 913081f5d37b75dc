#include "mainwindows/trial_picture.h"

#include "mainwindows/group_frames.h"
#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "renderer/render_context.h"
#include "renderer/trial_drawing.h"
#include "themefiles/module_state.h"

namespace mainwindows {

void TrialPicture::show(const std::vector<renderer::TrialValues>& objects) {
  Workspace& preview = *form_.Workspace;
  if (!shown_) {
    shown_ = Shown{preview.surface().image(), {}, {}, {}};
    const themefiles::TagList& listed = form_.session().objects();
    for (int row = 0; row < listed.ListCount(); ++row) shown_->objects.AddItem(listed.List(row));
  }
  std::optional<renderer::RenderAccount> account;
  preview.surface().drawFrame(shown_->frame, [&] {
    platform::guardedSilently(
        [&] { account = renderer::drawTrial(form_.renderContext(shown_->objects), objects, shown_->files); });
  });
  preview.Refresh();
  if (account) showGroupFrames(form_, *account);
  renderer::drawTrialCursor(form_.services.state, form_.session().objects(), preview.surface(), preview, objects);
}

void TrialPicture::putBack() {
  if (!form_.session().isOpen()) return;
  Workspace& preview = *form_.Workspace;
  if (shown_) preview.surface().putBack(shown_->before);
  forget();
  form_.renderContext().pictures->letGo();
  renderer::drawTrialCursor(form_.services.state, form_.session().objects(), preview.surface(), preview, {});
  showGroupFrames(form_, form_.account());
  preview.Refresh();
}

}  // namespace mainwindows
