#pragma once

#include "renderer/render_context.h"

namespace renderer {

/// Draws the chosen screen onto the surface: background, statics, texts, buttons with their child texts, each pass in
/// the order of the tag list, from the working copies and texture files as they are now. Builds the list of buttons at
/// the first drawing of a screen. Missing theme data leaves an object out; a number too large for 16 bits is reported.
/// Lets events through behind every object; what Yield throws passes through.
void DrawScreen(RenderContext& context);

/// The passes of DrawScreen alone, behind its progress bar and the start of its account.
void drawPasses(RenderContext& context);

}  // namespace renderer
