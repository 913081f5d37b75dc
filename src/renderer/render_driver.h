#pragma once

#include "renderer/render_context.h"

namespace renderer {

/// Draws the chosen screen onto the surface: background, statics, texts, then buttons with their child texts, each pass
/// in the order of the tag list. Reads the working copies and texture files as they are now. Fills the button list when
/// a screen is drawn for the first time. An object with missing data is left out; a number that doesn't fit into 16
/// bits is reported. Yields after each object; an exception of yield passes through.
void DrawScreen(RenderContext& context);

/// Only the passes of DrawScreen, without progress bar and without clearing the account.
void drawPasses(RenderContext& context);

}  // namespace renderer
