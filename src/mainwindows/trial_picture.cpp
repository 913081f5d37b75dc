#include "mainwindows/trial_picture.h"

#include <algorithm>

#include "mainwindows/group_frames.h"
#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "renderer/render_context.h"
#include "renderer/trial_drawing.h"
#include "themefiles/module_state.h"

namespace mainwindows {

void TrialPicture::show(const std::vector<renderer::TrialValues>& objects) {
  Workspace& preview = *form_.Workspace;
  if (!shown_) shown_ = Shown{preview.surface().image(), {}};
  platform::guardedSilently(
      [&] { showGroupFrames(form_, renderer::drawTrial(form_.renderContext(), objects, shown_->files)); });
  const auto selected = std::find_if(objects.begin(), objects.end(), [this](const renderer::TrialValues& object) {
    return object.areOf(form_.session().section());
  });
  renderer::drawTrialCursor(form_.services.state, form_.session().objects(), preview.surface(), preview,
                            selected == objects.end() ? renderer::TrialValues() : *selected);
  preview.Refresh();
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
