#include "renderer/text_objects.h"

#include <array>
#include <cmath>

#include "platform/numbers.h"
#include "platform/system_colors.h"
#include "themefiles/colour_tables.h"

namespace renderer {
namespace {

struct Face {
  double fontNumber;
  QStringView name;
  double pointsPerSize;
};

constexpr std::array<Face, 2> Faces{{
    {0, u"Eurostar Regular Extended", 1.4},
    {1, u"Eurostar Black", 2},
}};

/// A channel given as a fraction, 1 being full.
int channelOf(double fraction) {
  const double channel = std::nearbyint(fraction * 255);
  return channel >= 255 ? 255 : channel > 0 ? static_cast<int>(channel) : 0;
}

QColor colorOf(RenderContext& context, const ObjectSection& section) {
  const QString name = section.Value(QStringLiteral("Color"));
  if (!name.isEmpty()) {
    const QString color = themefiles::ResolveColor(context.State, name, context.Host.SchemeName());
    if (color.isEmpty()) LeaveOut(context, section.Name(), Reason::UnknownColor, QStringLiteral("Color"), name);
    return platform::ColorOf(static_cast<quint32>(themefiles::ColorToRGB(color)));
  }
  return {channelOf(section.Number(QStringLiteral("ColR"))), channelOf(section.Number(QStringLiteral("ColG"))),
          channelOf(section.Number(QStringLiteral("ColB")))};
}

/// Sets face and size; false when the text asks for a size that no text has.
bool setFont(RenderContext& context, const ObjectSection& section) {
  const double fontNumber = section.Number(QStringLiteral("Font"));
  const QString size = section.Value(QStringLiteral("Size"));
  for (const Face& face : Faces) {
    if (face.fontNumber != fontNumber) continue;
    context.Workspace.SetFontName(face.name.toString());
    const auto points = static_cast<float>(platform::NumberOf(size) * face.pointsPerSize);
    context.Workspace.SetFontSize(points);
    if (points > 0) return true;
    LeaveOut(context, section.Name(), Reason::NoSize, QStringLiteral("Size"), size);
    return false;
  }
  return true;
}

QString wordsOf(const RenderContext& context, const ObjectSection& section) {
  const QString key = section.Value(QStringLiteral("Text"), section.Name());
  if (key.isEmpty()) return section.Name();
  return ReadSection(context, QStringLiteral("Text"), context.State.Paths.LanguageFile).Value(key, key);
}

void printAligned(RenderContext& context, const ObjectSection& section, const QString& words, const QString& owner) {
  platform::Surface& surface = context.Workspace;
  const double align = section.Number(QStringLiteral("Align"));
  const double width = surface.TextWidth(words);
  const double height = surface.TextHeight(words);
  if (align == 1) surface.CurrentX = static_cast<float>(surface.CurrentX - width / 2);
  if (align == 2) surface.CurrentX = static_cast<float>(surface.CurrentX - width);
  surface.CurrentY = static_cast<float>(surface.CurrentY + height / 5);
  const QRectF place = QRectF(surface.CurrentX, surface.CurrentY, width, height) & QRectF(surface.image().rect());
  surface.Print(words);
  context.Account.Objects.push_back({section.Name(), place.toAlignedRect(), owner});
}

}  // namespace

void DrawTextObject(RenderContext& context, const ObjectSection& section, int baseX, int baseY, const QString& owner) {
  platform::Surface& surface = context.Workspace;
  surface.CurrentX = static_cast<float>(section.Number(QStringLiteral("X")) + baseX);
  surface.CurrentY = static_cast<float>(section.Number(QStringLiteral("Y")) + baseY);
  surface.ForeColor = colorOf(context, section);
  if (setFont(context, section)) printAligned(context, section, wordsOf(context, section), owner);
  UpdateProgress(context, context.State.ProgressStep);
  context.Host.Yield();
}

}  // namespace renderer
