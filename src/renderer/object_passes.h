#pragma once

#include "renderer/render_context.h"

/// The passes of a render. Which pass a tag belongs to is told by the words in its name, in upper case at any place.
namespace renderer {

/// Whether a tag is one of the buttons.
bool isButton(const QString& tag);

/// Paints the background picture over the whole surface; without one wipes it to the background colour.
void DrawBackground(RenderContext& context, const QString& stem);

/// Draws every static image of the tag list.
void DrawStatics(RenderContext& context);

/// Draws every free text of the tag list.
void DrawTexts(RenderContext& context);

/// Draws every button of the tag list with its child texts, and counts the visible ones in ButtonCount.
void DrawButtons(RenderContext& context);

}  // namespace renderer
