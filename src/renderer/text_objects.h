#pragma once

#include "renderer/object_values.h"

namespace renderer {

/// Draws one text of the theme with its anchor at X, Y plus the base (pixels), in the chosen language, its face and
/// size by Font and Size, aligned by Align, a fifth of its height lower. A Font other than 0 and 1 keeps what the text
/// before left on the surface.
/// `owner` is the button of a child text, empty for a free text.
void DrawTextObject(RenderContext& context, const ObjectSection& section, int baseX, int baseY, const QString& owner);

}  // namespace renderer
