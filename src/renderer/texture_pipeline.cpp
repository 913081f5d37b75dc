#include "renderer/texture_pipeline.h"

#include <new>

#include "platform/numbers.h"

namespace renderer {
namespace {

void tell(platform::Dialogs& dialogs, const QString& text) {
  dialogs.messageBox(nullptr, text, QString(), platform::BoxKind::Error);
}

void StartGraphics(drawing::Surface& surface, drawing::Graphics& graphics, platform::Dialogs& dialogs) {
  if (graphics.startup() != 0) {
    tell(dialogs, QStringLiteral("GDI+ could not be initialized"));
    return;
  }
  if (graphics.createFrom(surface) != 0) tell(dialogs, QStringLiteral("Graphics object could not be created"));
}

void StopGraphics(drawing::Graphics& graphics, platform::Dialogs& dialogs) {
  if (graphics.created() && graphics.deleteObject() != 0) {
    tell(dialogs, QStringLiteral("Graphics object could not be deleted"));
  }
  graphics.shutdown();
}

/// None if the colour has fewer than three fields.
std::optional<Recoloring> recoloringOf(const Texture& texture) {
  using Type = Recoloring::Type;
  const QStringList fields = platform::splitAtBlanks(texture.color);
  if (fields.size() < 3) return std::nullopt;
  const ColorNumbers color{static_cast<float>(platform::numberOf(fields[0])),
                           static_cast<float>(platform::numberOf(fields[1])),
                           static_cast<float>(platform::numberOf(fields[2]))};
  if (texture.type == u"COLORIZED") return Recoloring{Type::Colorized, color};
  if (texture.type == u"FONT BLACK") return Recoloring{Type::FontBlack, color, texture.intensity};
  return Recoloring{};
}

PictureRequest requestOf(const Texture& texture, const Recoloring& recoloring) {
  const Box& box = texture.box;
  if (box.X == -1 || box.Y == -1) return {texture.file.path, recoloring, QRect(), true, texture.file.identity};
  return {texture.file.path, recoloring, QRect(box.X, box.Y, box.W, box.H), box.W == -1 || box.H == -1,
          texture.file.identity};
}

TextureResult draw(RenderContext& context, const Texture& texture) {
  const auto recoloring = recoloringOf(texture);
  if (!recoloring) return {TextureOutcome::NoColor, {}};
  const PictureRequest request = requestOf(texture, *recoloring);
  const PreparedPicture prepared = prepare(context.pictures, request, texture.inHand);
  if (prepared.missing == Reason::Unread) return {TextureOutcome::Unread, {}};
  if (prepared.missing == Reason::NoPicture) return {TextureOutcome::NoPicture, {}};
  if (prepared.missing) return {TextureOutcome::ColorRange, {}};
  if (!context.graphics.created()) return {TextureOutcome::NoSession, {}};
  const QRect place(request.place.topLeft(), request.ownSize ? prepared.ownSize : request.place.size());
  if (place.isEmpty()) return {TextureOutcome::NoArea, place};
  context.graphics.drawImage(prepared.picture, prepared.corner.x(), prepared.corner.y());
  return {TextureOutcome::Drawn, place};
}

}  // namespace

TextureResult DrawTexture(RenderContext& context, const Texture& texture) {
  if (texture.file.path.isEmpty()) return {};
  TextureResult result;
  StartGraphics(context.Workspace, context.graphics, context.dialogs);
  try {
    result = draw(context, texture);
  } catch (const std::bad_alloc&) {
    result.outcome = TextureOutcome::NoPicture;
  }
  StopGraphics(context.graphics, context.dialogs);
  return result;
}

}  // namespace renderer
