#pragma once

#include "renderer/render_context.h"

/// The passes of a render. Words anywhere in a tag's name, in any case, tell which pass it belongs to.
namespace renderer {

/// Whether the tag is that of a static, a free text or a button. One may be both a static and another.
bool isStatic(const QString& tag);
bool isFreeText(const QString& tag);
bool isButton(const QString& tag);

/// The button to which a child text belongs by its name, as "MainButton" for "MainButtonText1"; empty for other tags.
QString buttonOfText(const QString& tag);

/// Draws the background picture over the whole surface, or else fills it with the background colour.
void DrawBackground(RenderContext& context, const QString& stem);

/// Draws all static pictures of the tag list.
void DrawStatics(RenderContext& context);

/// Draws all texts of the tag list that belong to no button.
void DrawTexts(RenderContext& context);

/// Draws all buttons of the tag list with their child texts, and counts the visible ones in ButtonCount.
void DrawButtons(RenderContext& context);

}  // namespace renderer
