#include "renderer/text_objects.h"

#include <array>
#include <cmath>

#include "drawing/system_colours.h"
#include "platform/numbers.h"
#include "themefiles/colour_tables.h"
#include "themefiles/section_names.h"

namespace renderer {
namespace {

struct TextFace {
  double fontNumber;
  QStringView name;
  double pointsPerSize;
};

constexpr auto Faces = std::to_array<TextFace>({
    {0, u"Eurostar Regular Extended", 1.4},
    {1, u"Eurostar Black", 2},
});

/// The channel for a fraction from 0 to 1.
int channelOf(double fraction) {
  const double channel = std::nearbyint(fraction * 255);
  return channel >= 255 ? 255 : channel > 0 ? static_cast<int>(channel) : 0;
}

QColor colorOf(RenderContext& context, const ObjectSection& section) {
  const QString name = section.Value(QStringLiteral("Color"));
  if (!name.isEmpty()) {
    const QString color = themefiles::ResolveColor(context.state, name, context.host.schemeName());
    if (color.isEmpty()) leaveOut(context, section.Name(), Reason::UnknownColor, QStringLiteral("Color"), name);
    return drawing::colorOf(static_cast<quint32>(themefiles::ColorToRGB(color)));
  }
  return {channelOf(section.number(QStringLiteral("ColR"))), channelOf(section.number(QStringLiteral("ColG"))),
          channelOf(section.number(QStringLiteral("ColB")))};
}

/// Sets the font. False if the size is 0 or below.
bool setFont(RenderContext& context, const ObjectSection& section) {
  const double fontNumber = section.number(QStringLiteral("Font"));
  const QString size = section.Value(QStringLiteral("Size"));
  for (const TextFace& face : Faces) {
    if (face.fontNumber != fontNumber) continue;
    context.Workspace.SetFontName(face.name.toString());
    const auto points = static_cast<float>(platform::numberOf(size) * face.pointsPerSize);
    context.Workspace.SetFontSize(points);
    if (points > 0) return true;
    leaveOut(context, section.Name(), Reason::NoSize, QStringLiteral("Size"), size);
    return false;
  }
  return true;
}

QString wordsOf(const RenderContext& context, const ObjectSection& section) {
  const QString key = section.Value(QStringLiteral("Text"), section.Name());
  if (key.isEmpty()) return section.Name();
  return readValue(context, themefiles::TextSection, context.state.paths.LanguageFile, key, key);
}

void printAligned(RenderContext& context, const ObjectSection& section, const QString& words, const QString& owner) {
  drawing::Surface& surface = context.Workspace;
  const double align = section.number(QStringLiteral("Align"));
  const double width = surface.TextWidth(words);
  const double height = surface.TextHeight(words);
  if (align == 1) surface.CurrentX = static_cast<float>(surface.CurrentX - width / 2);
  if (align == 2) surface.CurrentX = static_cast<float>(surface.CurrentX - width);
  surface.CurrentY = static_cast<float>(surface.CurrentY + height / 5);
  const QRectF place = QRectF(surface.CurrentX, surface.CurrentY, width, height) & QRectF(surface.image().rect());
  surface.Print(words);
  context.account.objects.push_back({section.Name(), place.toAlignedRect(), owner, {}});
}

}  // namespace

void DrawTextObject(RenderContext& context, const ObjectSection& section, int baseX, int baseY, const QString& owner) {
  drawing::Surface& surface = context.Workspace;
  surface.CurrentX = static_cast<float>(section.number(QStringLiteral("X")) + baseX);
  surface.CurrentY = static_cast<float>(section.number(QStringLiteral("Y")) + baseY);
  surface.ForeColor = colorOf(context, section);
  if (setFont(context, section)) printAligned(context, section, wordsOf(context, section), owner);
  UpdateProgress(context, context.state.ProgressStep);
  context.host.yield();
}

}  // namespace renderer
