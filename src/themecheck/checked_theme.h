#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QSet>
#include <QStringList>

#include "platform/status_line.h"
#include "themecheck/findings.h"
#include "themecheck/ini_file.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"

namespace themecheck {

/// A theme with all of its skins and the game's languages, as far as they can be read.
struct CheckedTheme {
  QString gameFolder;  ///< with a separator at its end
  const IniFile& theme;
  std::vector<IniFile> skins;
  const std::vector<IniFile>& languages;
  QStringList skinNames;      ///< those to be checked, in their order
  QStringList languageNames;  ///< the same
  bool complete = true;       ///< every skin could be read
};

/// The sections of a theme's objects: the first of each name, without those about the theme itself.
std::vector<const IniSection*> objectsOf(const IniFile& theme);

/// The key under which the words of an object are looked up: its Text, or its own name.
QString wordsKeyOf(const IniSection& object);

/// The values of all keys of that group in the theme.
QStringList valuesOf(const IniFile& theme, themefiles::KeyGroup group);

/// The state that the editor would have after opening the theme with that skin and language.
themefiles::ModuleState openState(const CheckedTheme& theme, const QString& skin, const QString& language);

/// Drops the reports of readers whose failures become findings.
class HeardReports : public platform::StatusLine {
 public:
  bool heard = false;

 protected:
  void showReport(const QString& /*text*/) override { heard = true; }
};

/// Told of each screen that is about to be drawn.
using Progress = std::function<void(const QString& theme, const QString& skin, const QString& screen)>;

// The checks.

/// What the renderer leaves out, or draws where nobody sees it.
void checkDrawing(const CheckedTheme& theme, Findings& findings, const Progress& progress);

/// Sections and keys that a file has more than once. `only` limits the keys to these names, in upper case.
void checkDoubles(const IniFile& file, Findings& findings, const std::optional<QSet<QString>>& only = std::nullopt);

/// Sections that no screen lists, and texts of buttons that the buttons don't ask for.
void checkSections(const CheckedTheme& theme, Findings& findings);

/// Values that the editor of their key couldn't enter.
void checkValues(const CheckedTheme& theme, Findings& findings);

/// Colours that no object uses, and more than there is room for.
void checkColors(const CheckedTheme& theme, Findings& findings);

/// Textures of the skins, and the pictures in the folder.
void checkSkins(const CheckedTheme& theme, Findings& findings);

/// Words that one of the languages lacks.
void checkWords(const CheckedTheme& theme, Findings& findings);

/// The keys of all words that the theme uses, in upper case.
QSet<QString> wordsOf(const IniFile& theme);

/// Words of a language that none of the themes uses.
void checkUnusedWords(const IniFile& language, const QSet<QString>& used, Findings& findings);

}  // namespace themecheck
