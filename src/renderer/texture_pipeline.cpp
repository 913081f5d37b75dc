#include "renderer/texture_pipeline.h"

#include <new>

#include "platform/numbers.h"
#include "platform/pictures.h"
#include "renderer/recolouring.h"

namespace renderer {
namespace {

void tell(platform::Dialogs& dialogs, const QString& text) {
  dialogs.MessageBox(nullptr, text, QString(), platform::BoxKind::Error);
}

void StartGraphics(platform::Surface& surface, platform::Graphics& graphics, platform::Dialogs& dialogs) {
  if (graphics.Startup() != 0) {
    tell(dialogs, QStringLiteral("GDI+ could not be initialized"));
    return;
  }
  if (graphics.CreateFrom(surface) != 0) tell(dialogs, QStringLiteral("Graphics object could not be created"));
}

void StopGraphics(platform::Graphics& graphics, platform::Dialogs& dialogs) {
  if (graphics.created() && graphics.Delete() != 0) {
    tell(dialogs, QStringLiteral("Graphics object could not be deleted"));
  }
  graphics.Shutdown();
}

/// Draws where x, y, w and h say; gives the rectangle.
QRect drawPlaced(platform::Graphics& graphics, const QImage& picture, qint16 x, qint16 y, qint16 w, qint16 h) {
  if (x != -1 && y != -1 && w != -1 && h != -1) {
    graphics.DrawImageRect(picture, x, y, w, h);
    return {x, y, w, h};
  }
  const QPoint corner = x == -1 || y == -1 ? QPoint(0, 0) : QPoint(x, y);
  graphics.DrawImage(picture, corner.x(), corner.y());
  return {corner, picture.size()};
}

/// The recoloured picture; a result other than Drawn when it can't be had.
TextureOutcome recolour(QImage& picture, const QString& type, const QString& color, float intensity) {
  const QStringList fields = platform::SplitAtBlanks(color);
  if (fields.size() < 3) return TextureOutcome::NoColor;
  const ColorNumbers numbers{static_cast<float>(platform::NumberOf(fields[0])),
                             static_cast<float>(platform::NumberOf(fields[1])),
                             static_cast<float>(platform::NumberOf(fields[2]))};
  if (type == u"COLORIZED") Colorize(picture, numbers);
  if (type == u"FONT BLACK" && !RecolourFont(picture, numbers, intensity)) return TextureOutcome::ColorRange;
  return TextureOutcome::Drawn;
}

}  // namespace

TextureResult DrawTexture(platform::Surface& surface, const QString& path, const QString& type, qint16 x, qint16 y,
                          qint16 w, qint16 h, const QString& color, float intensity, platform::Graphics& graphics,
                          platform::Dialogs& dialogs) {
  if (path.isEmpty()) return {};
  TextureResult result;
  StartGraphics(surface, graphics, dialogs);
  try {
    QImage picture = platform::LoadPicture(path);
    result.outcome = recolour(picture, type, color, intensity);
    if (result.outcome == TextureOutcome::Drawn) {
      result.place = drawPlaced(graphics, picture, x, y, w, h);
      if (picture.isNull()) {
        result.outcome = TextureOutcome::NoPicture;
      } else if (!graphics.created()) {
        result.outcome = TextureOutcome::NoSession;
      } else if (result.place.isEmpty()) {
        result.outcome = TextureOutcome::NoArea;
      }
    }
  } catch (const std::bad_alloc&) {
    result.outcome = TextureOutcome::NoPicture;
  }
  StopGraphics(graphics, dialogs);
  return result;
}

}  // namespace renderer
