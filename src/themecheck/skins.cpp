#include <algorithm>
#include <array>

#include <QFileInfo>
#include <QSet>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/status_line.h"
#include "themecheck/checked_theme.h"
#include "themefiles/colour_tables.h"
#include "themefiles/theme_paths.h"

namespace themecheck {
namespace {

using platform::upperCase;
using themefiles::KeyGroup;

const QString Textures = QStringLiteral("Textures");
const QString Colors = QStringLiteral("Colors");
constexpr qsizetype MostColors = 99;
constexpr auto PictureEndings = std::to_array<QStringView>({u".bmp", u".gif", u".jpg", u".jpeg", u".png"});

/// The first key of each name in a section.
std::vector<const IniKey*> keysOf(const IniFile& file, const QString& name) {
  std::vector<const IniKey*> keys;
  const IniSection* section = file.find(name);
  if (!section) return keys;
  for (const IniKey& key : section->keys) {
    if (key.line == key.counted) keys.push_back(&key);
  }
  return keys;
}

bool hasTexture(const IniFile& skin, const QString& texture) {
  const IniSection* textures = skin.find(Textures);
  return textures && textures->find(texture);
}

/// All textures, each at its place in the first skin that has it.
void checkLacking(const CheckedTheme& theme, Findings& findings) {
  QSet<QString> seen;
  for (const IniFile& skin : theme.skins) {
    for (const IniKey* key : keysOf(skin, Textures)) {
      if (seen.contains(upperCase(key->name))) continue;
      seen += upperCase(key->name);
      for (const IniFile& other : theme.skins) {
        if (hasTexture(other, key->name) || !theme.skinNames.contains(other.name())) continue;
        findings.add(Kind::LackingTexture, skin.place(Textures, key->name), {}, {other.name(), {}});
      }
    }
  }
}

void checkCase(const QString& folder, const IniFile& skin, const IniKey& key, Findings& findings) {
  if (key.value.isEmpty()) return;
  const QString native = platform::nativePath(folder);
  const QString plain = platform::plainPath(native + u'\\' + key.value);
  if (QFileInfo::exists(plain)) return;
  QString found = plain;
  // What can't be looked at is a finding of the drawing.
  platform::guardedSilently([&] { found = platform::findPath(plain); });
  if (found == plain || !QFileInfo::exists(found)) return;
  findings.add(Kind::OtherCase, skin.place(Textures, key.name), {key.value, found.sliced(native.size() + 1)});
}

void checkPictures(const QString& folder, const CheckedTheme& theme, Findings& findings) {
  QSet<QString> named;
  for (const IniFile& skin : theme.skins) {
    for (const IniKey* key : keysOf(skin, Textures)) named += upperCase(key->value);
  }
  const QString shown = QStringLiteral("Skins/") + theme.theme.name();
  try {
    for (const QStringView ending : PictureEndings) {
      for (const QString& picture : platform::listFiles(folder, ending.toString())) {
        if (named.contains(upperCase(picture))) continue;
        findings.add(Kind::UnusedPicture, {shown + u'/' + picture, 0, {}, {}});
      }
    }
  } catch (const platform::Failure& failure) {
    findings.add(Kind::CantBeRead, {shown, 0, {}, {}}, {failure.description()});
  }
}

QSet<QString> upperCase(const QStringList& names) {
  QSet<QString> upper;
  for (const QString& name : names) upper += upperCase(name);
  return upper;
}

}  // namespace

void checkSkins(const CheckedTheme& theme, Findings& findings) {
  const QString folder = themefiles::pathsOf(theme.gameFolder, theme.theme.name(), {}, {}).SkinDirectory;
  const QSet<QString> used = upperCase(valuesOf(theme.theme, KeyGroup::Texture));
  for (const IniFile& skin : theme.skins) {
    if (!theme.skinNames.contains(skin.name())) continue;
    for (const IniKey* key : keysOf(skin, Textures)) {
      if (!used.contains(upperCase(key->name))) findings.add(Kind::UnusedTexture, skin.place(Textures, key->name));
      checkCase(folder, skin, *key, findings);
    }
  }
  if (!theme.complete) return;
  checkLacking(theme, findings);
  checkPictures(folder, theme, findings);
}

void checkColors(const CheckedTheme& theme, Findings& findings) {
  HeardReports reports;
  themefiles::ModuleState state = openState(theme, {}, {});
  themefiles::ReadColors(state, reports);
  const IniSection* colors = theme.theme.find(Colors);
  if (!colors) return;
  if (reports.heard && colors->keys.size() > MostColors) {
    Place place = theme.theme.place(Colors);
    place.key = colors->keys[MostColors].name;
    place.line = colors->keys[MostColors].line;
    findings.add(Kind::TooManyColors, place);
  }
  const QStringList values = valuesOf(theme.theme, KeyGroup::Color);
  const QSet<QString> used(values.begin(), values.end());
  for (const IniKey* key : keysOf(theme.theme, Colors)) {
    // Names of the program's and of the players' colours are looked up before the theme's.
    const bool hides = themefiles::programColorNames().contains(key->name, Qt::CaseInsensitive) ||
                       std::any_of(state.PlayerColors.begin(), state.PlayerColors.end(),
                                   [&](const themefiles::NamedColor& color) { return color.Name == key->name; });
    if (hides || !used.contains(key->name)) {
      findings.add(Kind::UnusedColor, theme.theme.place(Colors, key->name));
    }
  }
}

}  // namespace themecheck
