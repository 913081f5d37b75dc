#include "themefiles/theme_paths.h"

#include "platform/failure.h"
#include "platform/files.h"

namespace themefiles {
namespace {

QStringList namesIn(const QString& folder) {
  QStringList names;
  try {
    names = platform::listFiles(folder, IniEnding);
  } catch (const platform::Failure&) {
    // The list stays empty.
  }
  for (QString& name : names) name.chop(IniEnding.size());
  return names;
}

}  // namespace

QStringList themesOf(const QString& gameFolder) {
  return namesIn(gameFolder + QStringLiteral("Themes\\"));
}

QStringList skinsOf(const QString& gameFolder, const QString& theme) {
  return namesIn(gameFolder + QStringLiteral("Skins\\") + theme);
}

QStringList languagesOf(const QString& gameFolder) {
  return namesIn(gameFolder + QStringLiteral("Languages"));
}

ThemePaths pathsOf(const QString& gameFolder, const QString& theme, const QString& skin, const QString& language) {
  ThemePaths paths;
  paths.ExeDirectory = gameFolder;
  paths.LanguagesDirectory = gameFolder + QStringLiteral("\\Languages");
  paths.ThemeFile = gameFolder + QStringLiteral("Themes\\") + theme + IniEnding;
  paths.SkinDirectory = gameFolder + QStringLiteral("Skins\\") + theme;
  paths.SkinFile = paths.SkinDirectory + u'\\' + skin + IniEnding;
  paths.LanguageFile = paths.LanguagesDirectory + u'\\' + language + IniEnding;
  return paths;
}

}  // namespace themefiles
