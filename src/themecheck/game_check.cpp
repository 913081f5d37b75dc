#include "themecheck/game_check.h"

#include <algorithm>
#include <utility>

#include <QDir>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "themecheck/sections.h"
#include "themecheck/theme_check.h"
#include "themecheck/words.h"
#include "themefiles/theme_paths.h"

namespace themecheck {
namespace {

/// The names that were asked for, as the game spells them; all of them when none was.
QStringList chosen(const QStringList& names, const QStringList& asked, const QString& what) {
  QStringList found;
  for (const QString& name : asked) {
    const auto known =
        std::find_if(names.begin(), names.end(), [&](const QString& each) { return platform::sameName(each, name); });
    if (known == names.end()) {
      throw platform::Failure(
          QStringLiteral("no %1 '%2'; there are: %3").arg(what, name, names.join(QStringLiteral(", "))));
    }
    if (!found.contains(*known)) found += *known;
  }
  return asked.isEmpty() ? names : found;
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
  QString shown(const QString& path) const;
  std::optional<QStringList> namesIn(const QString& folder);
  void tellLacking(const QString& theme, const QString& what);
  CheckedFile fileOf(const QString& name, const QString& path, bool isChecked) const;
  std::vector<CheckedFile> skinsOf(const QString& theme, bool& hasSkins);
  std::vector<CheckedFile> languages() const;
  void checkTheme(const QString& name);
  void checkLanguages();
  void take(std::vector<Finding> findings);

  const Request& request_;
  const Progress& progress_;
  QString folder_;  ///< with a separator at its end
  QStringList themeNames_;
  QStringList languageNames_;
  bool hasLanguages_ = true;
  QStringList checkedLanguages_;
  QSet<QString> usedWords_;
  bool allRead_ = true;  ///< every theme could be read
  Findings own_;         ///< about folders, and about all themes together
  std::vector<Finding> findings_;
};

GameCheck::GameCheck(const Request& request, const Progress& progress) : request_(request), progress_(progress) {
  const QDir game(request.gameFolder);
  if (!game.exists()) throw platform::Failure(QStringLiteral("no folder '%1'").arg(request.gameFolder));
  folder_ = platform::programPath(game.absolutePath()) + u'\\';
  const QString themes = folder_ + QStringLiteral("Themes");
  try {
    themeNames_ = platform::listFiles(themes, themefiles::IniEnding);
  } catch (const platform::Failure& failure) {
    throw platform::Failure(QStringLiteral("'%1' can't be listed: %2").arg(shown(themes), failure.description()));
  }
  themeNames_ = *namesIn(themes);
  if (themeNames_.isEmpty()) throw platform::Failure(QStringLiteral("no themes in '%1'").arg(request.gameFolder));
  const auto languages = namesIn(themefiles::pathsOf(folder_, {}, {}, {}).LanguagesDirectory);
  hasLanguages_ = !languages || !languages->isEmpty();
  languageNames_ = languages.value_or(QStringList());
  checkedLanguages_ = chosen(languageNames_, onlyName(request.language), QStringLiteral("language"));
  themeNames_ = chosen(themeNames_, request.themes, QStringLiteral("theme"));
  if (request.skin.isEmpty()) return;
  QStringList skins;
  for (const QString& theme : themeNames_) skins += themefiles::skinsOf(folder_, theme);
  chosen(skins, {request.skin}, QStringLiteral("skin"));
}

/// The path for a finding: from the place where the check was started.
QString GameCheck::shown(const QString& path) const {
  const QString native = platform::nativePath(path);
  const QString game = platform::nativePath(folder_);
  QString head = request_.gameFolder;
  while (head.size() > 1 && (head.endsWith(u'/') || head.endsWith(QDir::separator()))) head.chop(1);
  return head + (head.endsWith(u'/') ? QString() : QStringLiteral("/")) + native.sliced(game.size());
}

/// The names of the ini files, without their ending. Two of them may have the same name but for the case of their
/// ending; the game opens one of them. A folder that can't be listed is a finding.
std::optional<QStringList> GameCheck::namesIn(const QString& folder) {
  QStringList names;
  try {
    names = platform::listFiles(folder, themefiles::IniEnding);
  } catch (const platform::Failure& failure) {
    own_.add(Kind::CantBeRead, {shown(folder), 1, 0, {}, {}}, {failure.description()});
    return std::nullopt;
  }
  for (QString& name : names) name.chop(themefiles::IniEnding.size());
  names.removeDuplicates();
  return names;
}

void GameCheck::tellLacking(const QString& theme, const QString& what) {
  const QString path = themefiles::pathsOf(folder_, theme, {}, {}).ThemeFile;
  own_.add(Kind::CantBeOpened, {shown(path), 1, 0, {}, {}}, {what});
}

CheckedFile GameCheck::fileOf(const QString& name, const QString& path, bool isChecked) const {
  return {name, path, shown(path), isChecked};
}

std::vector<CheckedFile> GameCheck::skinsOf(const QString& theme, bool& hasSkins) {
  std::vector<CheckedFile> skins;
  const auto names = namesIn(themefiles::pathsOf(folder_, theme, {}, {}).SkinDirectory);
  hasSkins = !names || !names->isEmpty();
  for (const QString& name : names.value_or(QStringList())) {
    const bool isChecked = request_.skin.isEmpty() || platform::sameName(name, request_.skin);
    skins.push_back(fileOf(name, themefiles::pathsOf(folder_, theme, name, {}).SkinFile, isChecked));
  }
  return skins;
}

std::vector<CheckedFile> GameCheck::languages() const {
  std::vector<CheckedFile> files;
  for (const QString& name : languageNames_) {
    files.push_back(
        fileOf(name, themefiles::pathsOf(folder_, {}, {}, name).LanguageFile, checkedLanguages_.contains(name)));
  }
  return files;
}

std::vector<Finding> GameCheck::run() {
  for (const QString& name : themeNames_) checkTheme(name);
  if (request_.themes.isEmpty()) checkLanguages();
  take(own_.taken({}));
  sortFindings(findings_);
  return std::move(findings_);
}

void GameCheck::checkTheme(const QString& name) {
  const themefiles::ThemePaths paths = themefiles::pathsOf(folder_, name, {}, {});
  bool hasSkins = true;
  ThemeCheck check({fileOf(name, paths.ThemeFile, true), paths.SkinDirectory, shown(paths.SkinDirectory),
                    skinsOf(name, hasSkins), languages()});
  while (!check.isDone()) {
    progress_(name, check.next());
    check.step();
  }
  usedWords_ += check.usedWords();
  allRead_ = allRead_ && check.isRead();
  if (check.isRead() && !hasSkins) tellLacking(name, QStringLiteral("skin"));
  if (check.isRead() && !hasLanguages_) tellLacking(name, QStringLiteral("language"));
  take(check.findings());
}

/// The languages belong to all themes, so that only all together can tell what isn't used.
void GameCheck::checkLanguages() {
  for (const CheckedFile& file : languages()) {
    if (!file.isChecked) continue;
    platform::guardedSilently([&] {
      const IniFile language(file);
      checkDoubles(language, own_);
      if (allRead_) checkUnusedWords(language, usedWords_, own_);
    });
  }
}

void GameCheck::take(std::vector<Finding> findings) {
  std::move(findings.begin(), findings.end(), std::back_inserter(findings_));
}

}  // namespace

std::vector<Finding> checkGame(const Request& request, const Progress& progress) {
  return GameCheck(request, progress).run();
}

}  // namespace themecheck
