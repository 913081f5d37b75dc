#include "themecheck/theme_check.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QDir>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "themefiles/theme_paths.h"

namespace themecheck {
namespace {

/// The names that were asked for, as the game spells them; all of them when none was.
QStringList chosen(const QStringList& names, const QStringList& asked, const QString& what) {
  QStringList found;
  for (const QString& wish : asked) {
    const auto name =
        std::find_if(names.begin(), names.end(), [&](const QString& known) { return platform::sameName(known, wish); });
    if (name == names.end()) {
      throw platform::Failure(
          QStringLiteral("no %1 '%2'; there are: %3").arg(what, wish, names.join(QStringLiteral(", "))));
    }
    if (!found.contains(*name)) found += *name;
  }
  return asked.isEmpty() ? names : found;
}

/// Two files may have the same name but for the case of their ending; the game opens one of them.
QStringList eachOnce(QStringList names) {
  names.removeDuplicates();
  return names;
}

QStringList onlyName(const QString& name) {
  return name.isEmpty() ? QStringList() : QStringList(name);
}

/// A game folder and what was found in it.
class GameCheck {
 public:
  GameCheck(const Request& request, const Progress& progress);
  std::vector<Finding> run();

 private:
  std::optional<IniFile> read(const QString& name, const QString& path, bool tells);
  void checkTheme(const IniFile& file);
  void checkLanguages();
  void take(const Findings& findings, const QStringList& skins, const QStringList& languages);

  const Request& request_;
  const Progress& progress_;
  QString folder_;  ///< with a separator at its end
  QStringList themeNames_;
  QStringList languageNames_;
  std::vector<IniFile> themes_;  ///< all themes, for the words that they use
  std::vector<IniFile> languages_;
  Findings unread_;
  bool complete_ = true;  ///< every theme could be read
  std::vector<Finding> findings_;
};

GameCheck::GameCheck(const Request& request, const Progress& progress) : request_(request), progress_(progress) {
  const QDir game(request.gameFolder);
  if (!game.exists()) throw platform::Failure(QStringLiteral("no folder '%1'").arg(request.gameFolder));
  folder_ = platform::programPath(game.absolutePath()) + u'\\';
  const QStringList themes = eachOnce(themefiles::themesOf(folder_));
  if (themes.isEmpty()) throw platform::Failure(QStringLiteral("no themes in '%1'").arg(request.gameFolder));
  themeNames_ = chosen(themes, request.themes, QStringLiteral("theme"));
  const QStringList languages = eachOnce(themefiles::languagesOf(folder_));
  languageNames_ = chosen(languages, onlyName(request.language), QStringLiteral("language"));
  if (!request.skin.isEmpty()) {
    QStringList skins;
    for (const QString& theme : themeNames_) skins += themefiles::skinsOf(folder_, theme);
    chosen(eachOnce(skins), {request.skin}, QStringLiteral("skin"));
  }
  for (const QString& name : themes) {
    auto theme = read(name, themefiles::pathsOf(folder_, name, {}, {}).ThemeFile, themeNames_.contains(name));
    if (theme) themes_.push_back(std::move(*theme));
    complete_ = complete_ && theme;
  }
  for (const QString& name : languages) {
    const bool wanted = languageNames_.contains(name);
    auto language = read(name, themefiles::pathsOf(folder_, {}, {}, name).LanguageFile, wanted);
    if (language) {
      languages_.push_back(std::move(*language));
    } else {
      languageNames_.removeAll(name);
    }
  }
}

/// Reads a file. If that fails, the result is empty and there is a finding.
std::optional<IniFile> GameCheck::read(const QString& name, const QString& path, bool tells) {
  const QString shown = QDir(platform::nativePath(folder_)).relativeFilePath(platform::nativePath(path));
  try {
    return IniFile(name, path, shown);
  } catch (const platform::Failure& failure) {
    if (tells) unread_.add(Kind::CantBeRead, {shown, 0, {}, {}}, {failure.description()});
    return std::nullopt;
  }
}

std::vector<Finding> GameCheck::run() {
  for (const IniFile& theme : themes_) {
    if (themeNames_.contains(theme.name())) checkTheme(theme);
  }
  checkLanguages();
  take(unread_, {}, {});
  sortFindings(findings_);
  return std::move(findings_);
}

void GameCheck::checkTheme(const IniFile& file) {
  const QStringList skins = eachOnce(themefiles::skinsOf(folder_, file.name()));
  CheckedTheme theme{folder_, file, {}, languages_, {}, languageNames_, true};
  for (const QString& name : skins) {
    const bool wanted = request_.skin.isEmpty() || platform::sameName(name, request_.skin);
    auto skin = read(name, themefiles::pathsOf(folder_, file.name(), name, {}).SkinFile, wanted);
    theme.complete = theme.complete && skin;
    if (!skin) continue;
    theme.skins.push_back(std::move(*skin));
    if (wanted) theme.skinNames += name;
  }
  Findings findings;
  if (skins.isEmpty()) findings.add(Kind::CantBeOpened, file.wholeFile(), {QStringLiteral("skin")});
  if (languageNames_.isEmpty()) findings.add(Kind::CantBeOpened, file.wholeFile(), {QStringLiteral("language")});
  checkDoubles(file, findings);
  for (const IniFile& skin : theme.skins) {
    if (theme.skinNames.contains(skin.name())) checkDoubles(skin, findings);
  }
  checkSections(theme, findings);
  checkValues(theme, findings);
  checkColors(theme, findings);
  checkSkins(theme, findings);
  checkWords(theme, findings);
  checkDrawing(theme, findings, progress_);
  take(findings, theme.skinNames, theme.languageNames);
}

/// All themes share the languages. If some themes are named, only the words of these are checked.
void GameCheck::checkLanguages() {
  const bool all = request_.themes.isEmpty();
  QSet<QString> used;
  for (const IniFile& theme : themes_) {
    if (all || themeNames_.contains(theme.name())) used += wordsOf(theme);
  }
  Findings findings;
  for (const IniFile& language : languages_) {
    if (!languageNames_.contains(language.name())) continue;
    checkDoubles(language, findings, all ? std::nullopt : std::optional(used));
    if (all && complete_) checkUnusedWords(language, used, findings);
  }
  take(findings, {}, {});
}

void GameCheck::take(const Findings& findings, const QStringList& skins, const QStringList& languages) {
  for (Finding& finding : findings.taken(skins, languages)) findings_.push_back(std::move(finding));
}

}  // namespace

std::vector<Finding> checkGame(const Request& request, const Progress& progress) {
  return GameCheck(request, progress).run();
}

}  // namespace themecheck
