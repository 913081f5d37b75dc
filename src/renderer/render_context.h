#pragma once

#include "drawing/graphics.h"
#include "drawing/surface.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "renderer/prepared_pictures.h"
#include "renderer/render_account.h"
#include "renderer/render_host.h"
#include "renderer/trial_values.h"
#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"

namespace renderer {

/// All that a render works on.
struct RenderContext {
  themefiles::ModuleState& state;
  const themefiles::TagList& tags;  ///< the screen's tags in the order of painting
  drawing::Surface& Workspace;
  RenderHost& host;
  platform::StatusLine& status;
  platform::Dialogs& dialogs;
  drawing::Graphics& graphics;
  RenderAccount& account;
  PreparedPictures* pictures = nullptr;  ///< none: every picture is made anew
  TrialFrame* trial = nullptr;           ///< none: a render of what the files hold
  bool textsOnly = false;                ///< leaves the pictures of statics and buttons undrawn and unaccounted
};

/// Advances the progress bar by `step` percent and lets events through.
void UpdateProgress(RenderContext& context, qint16 step);

}  // namespace renderer
