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

/// What the passes draw, and enter in the account. Texts look for no picture: the texts of a button don't wait for its.
enum class Parts { All, Pictures, Texts };

/// Everything that a render needs.
struct RenderContext {
  themefiles::ModuleState& state;
  const themefiles::TagList& tags;  ///< the screen's tags in the order of drawing
  drawing::Surface& Workspace;
  RenderHost& host;
  platform::StatusLine& status;
  platform::Dialogs& dialogs;
  drawing::Graphics& graphics;
  RenderAccount& account;
  PreparedPictures* pictures = nullptr;  ///< the cache; null for none
  TrialFrame* trial = nullptr;           ///< the values on trial; null for none
  QString notMissed = {};                ///< a section drawn once more that isn't entered as left out
  Parts parts = Parts::All;
  int textShift = 0;  ///< how far the next child text of a button moves down
};

/// Advances the progress bar by `step` per cent and yields.
void UpdateProgress(RenderContext& context, qint16 step);

}  // namespace renderer
