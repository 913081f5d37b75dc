#pragma once

#include "renderer/object_values.h"

namespace renderer {

/// Draws a text in the chosen language. Its anchor is X, Y plus the base, Align tells how it lies at the anchor, and it
/// is drawn a fifth of its height lower. Font and Size give its font; a Font other than 0 and 1 keeps the font of the
/// previous text. `owner` is the button of a child text, else empty.
void DrawTextObject(RenderContext& context, const ObjectSection& section, int baseX, int baseY, const QString& owner);

}  // namespace renderer
