#pragma once

#include "drawing/graphics.h"
#include "renderer/plain_host.h"
#include "renderer/render_context.h"
#include "themefiles/tag_listing.h"

namespace renderer {

/// A screen without a window, in the state that it has in the editor after it was chosen and before it is drawn: the
/// tags are listed, the first is selected, and the surface has that tag's font.
class ChosenScreen {
 public:
  ChosenScreen(themefiles::ModuleState opened, const QString& screen, const QString& scheme,
               platform::StatusLine& status);
  Q_DISABLE_COPY_MOVE(ChosenScreen)

  themefiles::ModuleState state;
  themefiles::SortedTags tags;
  drawing::Surface workspace;
  RenderAccount account;
  PreparedPictures* pictures = nullptr;  ///< a store for several screens; null for none

  /// The context for a render of these tags. Don't use it longer than this object.
  RenderContext context(const themefiles::TagList& rows);
  RenderContext context() { return context(tags); }

 private:
  platform::StatusLine& status_;
  PlainHost host_;
  NoDialogs dialogs_;
  drawing::Graphics graphics_;
};

}  // namespace renderer
