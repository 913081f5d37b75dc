#include "renderer/object_values.h"

#include <array>

#include <QDir>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "themefiles/section_names.h"

namespace renderer {
namespace {

/// Accounts a picture before it is looked for: a change from here on shows in its identity.
void notePicture(const RenderContext& context, const QString& path) {
  auto& pictures = context.account.pictures;
  if (context.trial || pictures.find(path) != pictures.end()) return;
  pictures.emplace(path, platform::identityIfSeen(path));
}

}  // namespace

QString nameOfPicture(const RenderContext& context, const PictureFile& file) {
  const auto withSlashes = [](QString path) { return path.replace(u'\\', u'/'); };
  const QDir folder(withSlashes(context.state.paths.SkinDirectory));
  return folder.relativeFilePath(withSlashes(file.path)).replace(u'/', u'\\');
}

QString readValue(const RenderContext& context, const QString& section, const QString& file, const QString& key,
                  const QString& defaultValue) {
  if (context.trial) return context.trial->section(section, file).Value(key, defaultValue);
  return themefiles::GetINI(section, key, defaultValue, file);
}

ObjectSection::ObjectSection(const RenderContext& context, const QString& name)
    : name_(name),
      trial_(context.trial ? context.trial->valuesOf(name) : nullptr),
      reader_(context.trial ? context.trial->section(name, context.state.paths.ThemeFile)
                            : itself_.emplace(name, context.state.paths.ThemeFile)) {}

QString ObjectSection::Value(const QString& key, const QString& defaultValue) const {
  if (const QString* const tried = trial_ ? trial_->find(key) : nullptr) return *tried;
  return reader_.Value(key, defaultValue);
}

double ObjectSection::number(const QString& key) const {
  return platform::numberOf(Value(key));
}

void leaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value) {
  if (!section.isEmpty() && section == context.notMissed) return;
  context.account.missing.push_back({section, why, key, value});
}

std::optional<qint16> themeInt16(RenderContext& context, const ObjectSection& section, const QString& key,
                                 const QString& step) {
  const QString value = section.Value(key);
  const auto number = platform::roundToInt16(platform::numberOf(value));
  if (!number) {
    leaveOut(context, section.Name(), Reason::NumberTooLarge, key, value);
    context.status.ShowStatus(
        platform::reportText(step, QStringLiteral("%1: %2=%3 is too large").arg(section.Name(), key, value)));
  }
  return number;
}

std::optional<Box> themeBox(RenderContext& context, const ObjectSection& section, const QString& step) {
  constexpr auto Sides = std::to_array<std::pair<QStringView, qint16 Box::*>>(
      {{u"X", &Box::X}, {u"Y", &Box::Y}, {u"W", &Box::W}, {u"H", &Box::H}});
  Box box;
  for (const auto& [key, side] : Sides) {
    const auto number = themeInt16(context, section, key.toString(), step);
    if (!number) return std::nullopt;
    box.*side = *number;
  }
  return box;
}

PictureFile texturePath(RenderContext& context, const ObjectSection& section) {
  const QString name = section.Value(QStringLiteral("Tex"));
  const QString file = readValue(context, themefiles::TexturesSection, context.state.paths.SkinFile, name);
  if (file.isEmpty()) {
    const QString none = QStringLiteral("-");
    const bool isThere =
        readValue(context, themefiles::TexturesSection, context.state.paths.SkinFile, name, none).isEmpty();
    leaveOut(context, section.Name(), isThere ? Reason::EmptyTexture : Reason::NoTexture, QStringLiteral("Tex"), name);
    return {};
  }
  const QString path = context.state.paths.SkinDirectory + u'\\' + file;
  notePicture(context, path);
  Reason why = Reason::NoFile;
  try {
    const auto identity = context.trial ? context.trial->pictureAt(path) : platform::identityOf(path);
    if (identity || platform::fileExists(path)) return {path, identity};
  } catch (const platform::Failure&) {
    why = Reason::Unseen;
  }
  leaveOut(context, section.Name(), why, QStringLiteral("Tex"), file);
  return {};
}

}  // namespace renderer
