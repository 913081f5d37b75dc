#include "themecheck/checked_theme.h"

#include "platform/code_page.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace themecheck {

std::vector<const IniSection*> objectsOf(const IniFile& theme) {
  std::vector<const IniSection*> objects;
  for (const IniSection& section : theme.sections()) {
    if (section.line != section.counted || platform::sameName(section.name, u"Theme") ||
        platform::sameName(section.name, u"Colors")) {
      continue;
    }
    objects.push_back(&section);
  }
  return objects;
}

QString wordsKeyOf(const IniSection& object) {
  const IniKey* key = object.find(QStringLiteral("Text"));
  return key ? key->value : object.name;
}

QStringList valuesOf(const IniFile& theme, themefiles::KeyGroup group) {
  QStringList values;
  for (const IniSection* object : objectsOf(theme)) {
    for (const IniKey& key : object->keys) {
      if (themefiles::groupOf(themefiles::keyIdentity(key.name)) == group) values += key.value;
    }
  }
  return values;
}

themefiles::ModuleState openState(const CheckedTheme& theme, const QString& skin, const QString& language) {
  themefiles::ModuleState state;
  HeardReports reports;
  state.paths = themefiles::pathsOf(theme.gameFolder, theme.theme.name(), skin, language);
  themefiles::InitScreenTable(state);
  themefiles::ReadColors(state, reports);
  return state;
}

}  // namespace themecheck
