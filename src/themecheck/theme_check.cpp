#include "themecheck/theme_check.h"

#include <algorithm>
#include <utility>

#include "platform/failure.h"
#include "themecheck/colours.h"
#include "themecheck/letters.h"
#include "themecheck/sections.h"
#include "themecheck/skins.h"
#include "themecheck/values.h"
#include "themecheck/words.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"

namespace themecheck {
namespace {

/// How many of the files there are; one more if only some of them were asked for, so that these are always named.
qsizetype scopeOf(const std::vector<CheckedFile>& files) {
  const bool all = std::all_of(files.begin(), files.end(), [](const CheckedFile& file) { return file.isChecked; });
  return std::ssize(files) + (all ? 0 : 1);
}

}  // namespace

ThemeCheck::ThemeCheck(ThemeFiles files, qsizetype pictureBytes)
    : theme_(std::move(files)), tools_{renderer::PreparedPictures(pictureBytes)} {
  steps_.add(theme_.files.theme.name, [this] { readTheme(); });
}

/// Reads a file. If that fails, the result is empty and there is a finding.
std::optional<IniFile> ThemeCheck::read(const CheckedFile& file) {
  try {
    return IniFile(file);
  } catch (const platform::Failure& failure) {
    if (file.isChecked) findings_.add(Kind::CantBeRead, {file.shown, 1, 0, {}, {}}, {failure.description()});
    return std::nullopt;
  }
}

void ThemeCheck::readTheme() {
  theme_.file = read(theme_.files.theme);
  if (!theme_.file) return;
  const auto readLater = [this](const CheckedFile& file, std::vector<IniFile>& files, bool& all, const QString& table) {
    steps_.add(file.name, [this, &file, &files, &all, table] {
      auto found = read(file);
      all = all && found;
      if (!found) return;
      files.push_back(std::move(*found));
      if (!file.isChecked) return;
      checkLetters(files.back(), table, findings_);
      checkHeads(files.back(), false, findings_);
    });
  };
  for (const CheckedFile& skin : theme_.files.skins)
    readLater(skin, theme_.skins, theme_.allSkins, themefiles::TexturesSection);
  for (const CheckedFile& file : theme_.files.languages)
    readLater(file, theme_.languages, theme_.allLanguages, themefiles::TextSection);
  steps_.add(theme_.files.theme.name, [this] { checkFiles(); });
}

/// A step for each check, as each may have to go through a long file. Those further down go by what the ones before
/// have found.
void ThemeCheck::checkFiles() {
  themefiles::InitScreenTable(theme_.state);
  theme_.state = openState(theme_, {}, {});
  const QString& name = theme_.files.theme.name;
  const auto later = [&](const std::function<void()>& work) { steps_.add(name, work); };
  later([this] {
    checkLetters(theme_.theme(), themefiles::ColorsSection, findings_);
    checkHeads(theme_.theme(), true, findings_);
  });
  later([this] { checkDoubles(theme_.theme(), findings_); });
  steps_.addEach(name, theme_.skins.size(), [this](size_t skin) {
    if (theme_.skins[skin].isChecked()) checkDoubles(theme_.skins[skin], findings_);
  });
  steps_.addEach(name, theme_.languages.size(), [this](size_t language) {
    if (theme_.languages[language].isChecked()) checkDoubles(theme_.languages[language], findings_, usedWords());
  });
  addSectionSteps(theme_, findings_, steps_);
  later([this] { checkColors(theme_, findings_); });
  addSkinSteps(theme_, findings_, steps_);
  later([this] { checkWords(theme_, findings_); });
  later([this] { addScreens(); });
}

void ThemeCheck::addScreens() {
  QStringList languages;
  for (const IniFile& language : theme_.languages) {
    if (language.isChecked()) languages += language.name();
  }
  if (languages.isEmpty()) languages += QString();
  for (const themefiles::ScreenRow& screen : theme_.state.ScreenTable) {
    const QString name = screen.Name;
    for (const IniFile& skin : theme_.skins) {
      if (!skin.isChecked() || theme_.lostSkins.contains(skin.name())) continue;
      steps_.add(QStringList{name, skin.name()}.join(QStringLiteral(", ")),
                 [this, name, skin = skin.name()] { checkPicturesOf(theme_, name, skin, tools_, findings_); });
    }
    for (const QString& language : languages) {
      steps_.add(QStringList{name, language}.join(QStringLiteral(", ")),
                 [this, name, language] { checkTextsOf(theme_, name, language, tools_, findings_); });
    }
  }
  const auto forObjects = [&](void (*check)(const CheckedTheme&, const IniSection&, Findings&)) {
    const std::vector<const IniSection*> objects = objectsOf(theme_.theme());
    steps_.addEach(theme_.files.theme.name, objects.size(),
                   [this, objects, check](size_t number) { check(theme_, *objects[number], findings_); });
  };
  forObjects(checkGameNames);
  forObjects(checkValues);
}

std::vector<Finding> ThemeCheck::findings() const {
  return findings_.taken({scopeOf(theme_.files.skins), scopeOf(theme_.files.languages),
                          std::ssize(themefiles::schemeNames(theme_.state))});
}

QSet<QString> ThemeCheck::usedWords() const {
  return theme_.file ? wordsOf(theme_.theme()) : QSet<QString>();
}

}  // namespace themecheck
