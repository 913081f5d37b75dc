#include "screens.h"

#include "plain_host.h"
#include "platform/graphics.h"
#include "renderer/highlight_cursor.h"
#include "renderer/render_driver.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"

namespace contactsheet {
namespace {

/// The tags of the screen with the first one selected.
void listTags(themefiles::ModuleState& state, const QString& screen, themefiles::TagList& tags,
              platform::StatusLine& status) {
  state.Filter = themefiles::FilterOf(screen);
  themefiles::ReadTags(state, screen, tags, status, [] {});
  state.Filter = {};
}

/// Reads the selected tag and places the mark on it, which leaves its font on the surface.
void selectTag(themefiles::ModuleState& state, const themefiles::TagList& tags, platform::Surface& workspace,
               platform::StatusLine& status) {
  if (tags.ListIndex() < 0) return;
  NoMark mark;
  themefiles::ReadTag(state, tags.List(tags.ListIndex()), status);
  renderer::DrawCursor(state, tags, workspace, mark, status);
}

}  // namespace

Screen DrawScreen(const Theme& theme, const themefiles::ScreenRow& screen, const QString& scheme,
                  std::optional<quint8> selected, renderer::PreparedPictures& pictures, platform::StatusLine& status) {
  themefiles::ModuleState state = theme.State();
  platform::Surface workspace;
  themefiles::SortedTags tags;
  listTags(state, screen.Name, tags, status);
  selectTag(state, tags, workspace, status);
  PlainHost host(screen.Name, scheme);
  NoDialogs dialogs(status);
  platform::Graphics graphics;
  renderer::RenderAccount account;
  renderer::RenderContext context{state, tags, workspace, host, status, dialogs, graphics, account, &pictures};
  renderer::DrawScreen(context);
  if (selected) {
    state.ButtonListFilled = true;
    state.SelectedButton = *selected;
    renderer::DrawScreen(context);
  }
  return {screen.Name, workspace.image(), RowsOf(screen.Stem + QStringLiteral("Background"), tags, account)};
}

}  // namespace contactsheet
