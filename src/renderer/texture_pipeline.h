#pragma once

#include <QRect>
#include <QString>

#include "renderer/object_values.h"
#include "renderer/recolouring.h"
#include "renderer/render_context.h"

namespace renderer {

/// A texture as an object has it drawn.
struct Texture {
  QString path;
  QString type;  ///< "COLORIZED", "FONT BLACK"; any other leaves the pixels
  Box box;
  QString color;  ///< "150 150 150"
  float intensity = NoIntensity;
  bool inHand = false;  ///< its size may be another in each frame
};

enum class TextureOutcome { Drawn, NoSession, NoPicture, NoColor, ColorRange, NoArea };

/// What came of a DrawTexture, and where it drew.
struct TextureResult {
  TextureOutcome outcome = TextureOutcome::NoSession;
  QRect place;
};

/// Recolours the picture by type, colour and intensity, and draws it on the surface with alpha: scaled to the box, or
/// at its own size when one of X, Y, W, H is -1 (at 0, 0 for an X or Y of -1). A session that can't be opened or closed
/// is told in a message box; nothing else is, and no failure reaches the caller.
TextureResult DrawTexture(RenderContext& context, const Texture& texture);

}  // namespace renderer
