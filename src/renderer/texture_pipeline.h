#pragma once

#include <QRect>
#include <QString>

#include "platform/dialogs.h"
#include "platform/graphics.h"
#include "platform/surface.h"
#include "renderer/recolouring.h"

namespace renderer {

enum class TextureOutcome { Drawn, NoSession, NoPicture, NoColor, ColorRange, NoArea };

/// What came of a DrawTexture, and where it drew.
struct TextureResult {
  TextureOutcome outcome = TextureOutcome::NoSession;
  QRect place;
};

/// Decodes the picture at `path`, recolours it by `type` ("COLORIZED", "FONT BLACK"; any other leaves the pixels) with
/// the colour text ("150 150 150") and the intensity, and draws it on the surface with alpha: scaled to the rectangle,
/// or at its own size when one of x, y, w, h is -1 (at 0, 0 for an x or y of -1). A session that can't be opened or
/// closed is told in a message box; nothing else is, and no failure reaches the caller.
TextureResult DrawTexture(platform::Surface& surface, const QString& path, const QString& type, qint16 x, qint16 y,
                          qint16 w, qint16 h, const QString& color, float intensity, platform::Graphics& graphics,
                          platform::Dialogs& dialogs);

}  // namespace renderer
