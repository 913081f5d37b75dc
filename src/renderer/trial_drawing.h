#pragma once

#include "renderer/highlight_cursor.h"
#include "renderer/render_context.h"

/// Frames of a screen with values on trial, as an object shows them while it is moved or sized by hand. Nothing but
/// the surface's pixels, and the mark, tells of a trial: it reports nothing, shows no progress, serves no events, and
/// leaves pen, account, state and controls as found.
namespace renderer {

/// Draws the screen as DrawScreen would if the files held the values of the objects, from the pen that the last render
/// started from (the context's account knows it). Looks at each file once. Gives an account of its own.
RenderAccount drawTrial(const RenderContext& context, const std::vector<TrialValues>& objects, TrialFiles& files);

/// Places the mark as DrawCursor would if the files, and the record of the selected object, held the values.
void drawTrialCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                     CursorMark& mark, const std::vector<TrialValues>& objects);

}  // namespace renderer
