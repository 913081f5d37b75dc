#include "renderer/chosen_screen.h"

#include <utility>

#include "themefiles/tag_reader.h"

namespace renderer {

ChosenScreen::ChosenScreen(themefiles::ModuleState opened, const QString& screen, const QString& scheme,
                           platform::StatusLine& status)
    : state(std::move(opened)), status_(status), host_(screen, scheme), dialogs_(status) {
  themefiles::listScreenTags(state, screen, tags, status, [] {});
  if (tags.ListIndex() < 0) return;
  NoMark mark;
  themefiles::ReadTag(state, tags.List(tags.ListIndex()), status);
  DrawCursor(state, tags, workspace, mark, status);
}

RenderContext ChosenScreen::context(const themefiles::TagList& rows) {
  return {.state = state,
          .tags = rows,
          .Workspace = workspace,
          .host = host_,
          .status = status_,
          .dialogs = dialogs_,
          .graphics = graphics_,
          .account = account,
          .pictures = pictures};
}

}  // namespace renderer
