#include "renderer/object_values.h"

#include <array>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"

namespace renderer {

themefiles::SectionReader ReadSection(const RenderContext& context, const QString& section, const QString& file) {
  if (context.trial) return {section, context.trial->bytesOf(file)};
  return {section, file};
}

ObjectSection::ObjectSection(const RenderContext& context, const QString& name)
    : name_(name),
      trial_(context.trial ? context.trial->valuesOf(name) : nullptr),
      reader_(ReadSection(context, name, context.State.Paths.ThemeFile)) {}

QString ObjectSection::Value(const QString& key, const QString& defaultValue) const {
  if (const QString* const tried = trial_ ? trial_->find(key) : nullptr) return *tried;
  return reader_.Value(key, defaultValue);
}

double ObjectSection::Number(const QString& key) const {
  return platform::NumberOf(Value(key));
}

void LeaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value) {
  context.Account.Missing.push_back({section, why, key, value});
}

std::optional<qint16> ThemeInt16(RenderContext& context, const ObjectSection& section, const QString& key,
                                 const QString& step) {
  const QString value = section.Value(key);
  const auto number = platform::RoundToInt16(platform::NumberOf(value));
  if (!number) {
    LeaveOut(context, section.Name(), Reason::NumberTooLarge, key, value);
    context.Status.ShowStatus(
        platform::ReportText(step, QStringLiteral("%1: %2=%3 is too large").arg(section.Name(), key, value)));
  }
  return number;
}

std::optional<Box> ThemeBox(RenderContext& context, const ObjectSection& section, const QString& step) {
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

QString TexturePath(RenderContext& context, const ObjectSection& section) {
  const QString name = section.Value(QStringLiteral("Tex"));
  const QString file = ReadSection(context, QStringLiteral("Textures"), context.State.Paths.SkinFile).Value(name);
  if (file.isEmpty()) {
    LeaveOut(context, section.Name(), Reason::NoTexture, QStringLiteral("Tex"), name);
    return {};
  }
  const QString path = context.State.Paths.SkinDirectory + u'\\' + file;
  Reason why = Reason::NoFile;
  try {
    if (platform::FileExists(path)) return path;
  } catch (const platform::Failure&) {
    why = Reason::Unseen;
  }
  LeaveOut(context, section.Name(), why, QStringLiteral("Tex"), file);
  return {};
}

}  // namespace renderer
