#pragma once

#include "platform/dialogs.h"
#include "platform/graphics.h"
#include "platform/status_line.h"
#include "platform/surface.h"
#include "renderer/render_account.h"
#include "renderer/render_host.h"
#include "themefiles/module_state.h"
#include "themefiles/screen_table.h"

namespace renderer {

/// All that a render works on.
struct RenderContext {
  themefiles::ModuleState& State;
  const themefiles::TagList& List1;  ///< the screen's tags in the order of painting
  platform::Surface& Workspace;
  RenderHost& Host;
  platform::StatusLine& Status;
  platform::Dialogs& Dialogs;
  platform::Graphics& Graphics;
  RenderAccount& Account;
};

/// Draws the chosen screen onto the surface: background, statics, texts, buttons with their child texts, each pass in
/// the order of the tag list, from the working copies and texture files as they are now. Builds the list of buttons at
/// the first drawing of a screen. Missing theme data leaves an object out; a number too large for 16 bits is reported.
/// Lets events through behind every object; what Yield throws passes through.
void DrawScreen(RenderContext& context);

/// Advances the progress bar by `step` percent and lets events through.
void UpdateProgress(RenderContext& context, qint16 step);

}  // namespace renderer
