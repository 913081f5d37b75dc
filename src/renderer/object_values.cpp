#include "renderer/object_values.h"

#include <array>

#include "platform/files.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"

namespace renderer {

QString ThemeValue(const RenderContext& context, const QString& section, const QString& key) {
  return themefiles::GetINI(section, key, QString(), context.State.Paths.ThemeFile);
}

double ThemeNumber(const RenderContext& context, const QString& section, const QString& key) {
  return platform::NumberOf(ThemeValue(context, section, key));
}

void LeaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value) {
  context.Account.Missing.push_back({section, why, key, value});
}

std::optional<qint16> ThemeInt16(RenderContext& context, const QString& section, const QString& key,
                                 const QString& step) {
  const QString value = ThemeValue(context, section, key);
  const auto number = platform::RoundToInt16(platform::NumberOf(value));
  if (!number) {
    LeaveOut(context, section, Reason::NumberTooLarge, key, value);
    context.Status.ShowStatus(
        platform::ReportText(step, QStringLiteral("%1: %2=%3 is too large").arg(section, key, value)));
  }
  return number;
}

std::optional<Box> ThemeBox(RenderContext& context, const QString& section, const QString& step) {
  constexpr std::array<std::pair<QStringView, qint16 Box::*>, 4> Sides{
      {{u"X", &Box::X}, {u"Y", &Box::Y}, {u"W", &Box::W}, {u"H", &Box::H}}};
  Box box;
  for (const auto& [key, side] : Sides) {
    const auto number = ThemeInt16(context, section, key.toString(), step);
    if (!number) return std::nullopt;
    box.*side = *number;
  }
  return box;
}

QString TexturePath(RenderContext& context, const QString& section) {
  const QString name = ThemeValue(context, section, QStringLiteral("Tex"));
  const QString file = themefiles::GetINI(QStringLiteral("Textures"), name, QString(), context.State.Paths.SkinFile);
  if (file.isEmpty()) {
    LeaveOut(context, section, Reason::NoTexture, QStringLiteral("Tex"), name);
    return {};
  }
  const QString path = context.State.Paths.SkinDirectory + u'\\' + file;
  if (!platform::FileExists(path)) {
    LeaveOut(context, section, Reason::NoFile, QStringLiteral("Tex"), file);
    return {};
  }
  return path;
}

}  // namespace renderer
