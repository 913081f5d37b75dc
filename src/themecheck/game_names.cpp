#include <algorithm>

#include "platform/code_page.h"
#include "themecheck/checked_theme.h"

namespace themecheck {
namespace {

using themefiles::KeyGroup;

void checkColor(const CheckedTheme& theme, const IniKey& key, const Place& place, Findings& findings) {
  const auto& colors = theme.state.ThemeColors;
  const bool isThere = isBuiltInColor(theme, key.value) ||
                       std::any_of(colors.begin(), colors.end(),
                                   [&](const themefiles::NamedColor& color) { return color.Name == key.value; });
  if (!isThere && !theme.colorsLost) findings.add(Kind::GameColor, place, {key.value});
}

void checkTexture(const CheckedTheme& theme, const IniKey& key, const Place& place, Findings& findings) {
  for (const IniFile& skin : theme.skins) {
    if (!skin.isChecked() || theme.lostSkins.contains(skin.name())) continue;
    const IniSection* const textures = skin.find(QStringLiteral("Textures"));
    if (textures && !textures->value(key.value).isEmpty()) continue;
    const bool isEmpty = skin.has(QStringLiteral("Textures"), key.value);
    findings.add(isEmpty ? Kind::GameEmptyTexture : Kind::GameTexture, place, {key.value}, {skin.name(), {}, {}});
  }
}

/// A background has no colour.
bool isBackground(const CheckedTheme& theme, const QString& name) {
  const auto& screens = theme.state.ScreenTable;
  return std::any_of(screens.begin(), screens.end(), [&](const themefiles::ScreenRow& screen) {
    return platform::sameName(name, screen.Stem + QStringLiteral("Background"));
  });
}

}  // namespace

void checkGameNames(const CheckedTheme& theme, Findings& findings) {
  for (const IniSection* object : objectsOf(theme.theme())) {
    const bool hasColors = !isBackground(theme, object->name);
    for (const IniKey& key : object->keys) {
      if (key.line != key.counted || key.value.isEmpty() || findings.isTold(object->name, key.name)) continue;
      const auto group = themefiles::groupOf(themefiles::keyIdentity(key.name));
      const Place place = theme.theme().valueOf(object->name, key.name);
      if (group == KeyGroup::Color && hasColors) checkColor(theme, key, place, findings);
      if (group == KeyGroup::Texture) checkTexture(theme, key, place, findings);
    }
  }
}

}  // namespace themecheck
