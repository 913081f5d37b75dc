#include "themecheck/values.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/numbers.h"

namespace themecheck {
namespace {

using themefiles::EditorFrame;
using themefiles::GroupRow;
using themefiles::KeyGroup;
using themefiles::TexturesSection;

/// The colour of a text that names none.
constexpr auto ChannelsOfTexts = std::to_array<QStringView>({u"COLR", u"COLG", u"COLB"});

/// Whether the value is what an entry of a fixed list stands for; words in any case, numbers as numbers.
bool isInList(const GroupRow& group, const QString& value) {
  return std::any_of(group.entries.begin(), group.entries.end(), [&](QStringView entry) {
    const QString listed = platform::trimBlanks(entry.toString().section(u'=', 0, 0));
    return group.group == KeyGroup::Type ? platform::sameName(listed, value)
                                         : platform::numberOf(listed) == platform::numberOf(value);
  });
}

void checkValue(const IniFile& theme, const IniSection& object, const IniKey& key, Findings& findings) {
  const QString identity = themefiles::keyIdentity(key.name);
  const auto group = themefiles::groupOf(identity);
  if (identity.startsWith(u'#')) return;  // the tool window takes the line for a comment
  if (!group) {
    const bool isRead = std::find(ChannelsOfTexts.begin(), ChannelsOfTexts.end(), identity) != ChannelsOfTexts.end() &&
                        platform::upperCase(object.name).contains(u"TEXT");
    if (!isRead) findings.add(Kind::NoEditor, theme.placeOf(object, key));
    return;
  }
  const GroupRow& row = themefiles::rowOf(*group);
  const bool isList = row.frame == EditorFrame::Selection;
  const bool isNumeric = row.frame == EditorFrame::Numbers || row.frame == EditorFrame::FloatNumbers ||
                         (isList && *group != KeyGroup::Type);
  const Place place = theme.valueOf(object.name, key.name);
  if (isNumeric && !platform::isNumber(key.value)) {
    findings.add(Kind::NoNumber, place, {key.value});
  } else if (isList && !isInList(row, key.value)) {
    findings.add(Kind::OutsideList, place, {key.value});
  }
}

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
    const IniSection* const textures = skin.find(TexturesSection);
    if (textures && !textures->value(key.value).isEmpty()) continue;
    const bool isEmpty = skin.has(TexturesSection, key.value);
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

void checkGameNames(const CheckedTheme& theme, const IniSection& object, Findings& findings) {
  const bool hasColors = !isBackground(theme, object.name);
  for (const IniKey& key : object.keys) {
    if (key.line != key.counted || key.value.isEmpty() || findings.isTold(object.name, key.name)) continue;
    const auto group = themefiles::groupOf(themefiles::keyIdentity(key.name));
    const Place place = theme.theme().valueOf(object.name, key.name);
    if (group == KeyGroup::Color && hasColors) checkColor(theme, key, place, findings);
    if (group == KeyGroup::Texture) checkTexture(theme, key, place, findings);
  }
}

void checkValues(const CheckedTheme& theme, const IniSection& object, Findings& findings) {
  for (const IniKey& key : object.keys) {
    if (key.line != key.counted || findings.isTold(object.name, key.name)) continue;
    checkValue(theme.theme(), object, key, findings);
  }
}

}  // namespace themecheck
