#pragma once

#include <QRect>
#include <QString>

#include "renderer/object_values.h"
#include "renderer/recolouring.h"
#include "renderer/render_context.h"

namespace renderer {

/// A texture, and how to draw it.
struct Texture {
  PictureFile file;
  QString type;  ///< "COLORIZED" or "FONT BLACK"; any other doesn't recolour
  Box box;
  QString color;  ///< "150 150 150"
  float intensity = NoIntensity;
  bool inHand = false;  ///< its size may change with each frame
};

enum class TextureOutcome { Drawn, NoSession, Unread, NoPicture, NoColor, ColorRange, NoArea };

/// The outcome of DrawTexture, and the rectangle that it drew.
struct TextureResult {
  TextureOutcome outcome = TextureOutcome::NoSession;
  QRect place;
};

/// Recolours the picture by type, colour and intensity, and draws it scaled to the box. If one of X, Y, W, H is -1, it
/// is drawn at its own size; an X or Y of -1 counts as 0. A session that can't be opened or closed is reported in a
/// message box. No failure is thrown.
TextureResult DrawTexture(RenderContext& context, const Texture& texture);

}  // namespace renderer
