#include "themecheck/checked_theme.h"

#include <algorithm>

#include "platform/code_page.h"
#include "themefiles/colour_tables.h"

namespace themecheck {
namespace {

QString pathOf(const std::vector<CheckedFile>& files, const QString& name) {
  const auto file = std::find_if(files.begin(), files.end(), [&](const CheckedFile& one) { return one.name == name; });
  return file == files.end() ? QString() : file->path;
}

}  // namespace

std::vector<const IniSection*> objectsOf(const IniFile& theme) {
  std::vector<const IniSection*> objects;
  for (const IniSection& section : theme.sections()) {
    if (section.line != section.counted || platform::sameName(section.name, u"Theme") ||
        platform::sameName(section.name, themefiles::ColorsSection)) {
      continue;
    }
    objects.push_back(&section);
  }
  return objects;
}

QString namesOfTheme(qsizetype count) {
  return count == 1 ? QStringLiteral("1 name of the theme is") : QStringLiteral("%1 names of the theme are").arg(count);
}

QString wordsKeyOf(const IniSection& object) {
  if (const IniKey* key = object.find(QStringLiteral("Text"))) return key->value;
  return platform::upperCase(object.name).contains(u"TEXT") ? object.name : QString();
}

QSet<QString> valuesOf(const IniFile& theme, themefiles::KeyGroup group) {
  QSet<QString> values;
  for (const IniSection* object : objectsOf(theme)) {
    for (const IniKey& key : object->keys) {
      if (key.value.isEmpty() || themefiles::groupOf(themefiles::keyIdentity(key.name)) != group) continue;
      values += key.value;
    }
  }
  return values;
}

bool isBuiltInColor(const CheckedTheme& theme, const QString& name) {
  const auto& players = theme.state.PlayerColors;
  if (players.front().Name.isEmpty()) return false;  // they are read behind the theme's, if there is room
  return themefiles::programColorNames().contains(name, Qt::CaseInsensitive) ||
         std::any_of(players.begin(), players.end(),
                     [&](const themefiles::NamedColor& color) { return color.Name == name; });
}

themefiles::ModuleState openState(const CheckedTheme& theme, const QString& skin, const QString& language) {
  themefiles::ModuleState state = theme.state;
  state.paths.ThemeFile = theme.files.theme.path;
  state.paths.SkinDirectory = theme.files.pictures;
  state.paths.SkinFile = pathOf(theme.files.skins, skin);
  state.paths.LanguageFile = pathOf(theme.files.languages, language);
  return state;
}

}  // namespace themecheck
