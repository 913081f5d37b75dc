#pragma once

#include "drawing/graphics.h"
#include "renderer/plain_host.h"
#include "renderer/render_context.h"
#include "themefiles/tag_listing.h"

namespace renderer {

/// A screen without a window, as it stands in the editor just after it was chosen and before it is drawn: its tags
/// listed, the first one selected, and that tag's font on the surface.
class ChosenScreen {
 public:
  ChosenScreen(themefiles::ModuleState opened, const QString& screen, const QString& scheme,
               platform::StatusLine& status);
  Q_DISABLE_COPY_MOVE(ChosenScreen)

  themefiles::ModuleState state;
  themefiles::SortedTags tags;
  drawing::Surface workspace;
  RenderAccount account;
  PreparedPictures* pictures = nullptr;  ///< kept from one screen to the next; none: every picture is made anew

  /// What a render of these tags works on, for as long as the screen lives.
  RenderContext context(const themefiles::TagList& rows);
  RenderContext context() { return context(tags); }

 private:
  platform::StatusLine& status_;
  PlainHost host_;
  NoDialogs dialogs_;
  drawing::Graphics graphics_;
};

}  // namespace renderer
