#pragma once

#include <optional>
#include <utility>

#include <QSet>
#include <QStringList>

#include "platform/status_line.h"
#include "themecheck/findings.h"
#include "themecheck/ini_file.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"

namespace themecheck {

/// The sections that the names of textures and texts are looked up in, of a skin and of a language.
inline const QString Textures = QStringLiteral("Textures");
inline const QString Text = QStringLiteral("Text");

/// The files of a theme, each where it is to be read: the game's own, or working copies.
struct ThemeFiles {
  CheckedFile theme;
  QString pictures;       ///< the folder of the skins' pictures
  QString shownPictures;  ///< as findings name it
  std::vector<CheckedFile> skins;
  std::vector<CheckedFile> languages;
};

/// A theme with its skins and languages, as far as they could be read.
struct CheckedTheme {
  explicit CheckedTheme(ThemeFiles of) : files(std::move(of)) {}

  ThemeFiles files;
  std::optional<IniFile> file;
  std::vector<IniFile> skins;
  std::vector<IniFile> languages;
  bool allSkins = true;      ///< each could be read
  bool allLanguages = true;  ///< the same
  themefiles::ModuleState state;

  // What is told once, and not of each object that suffers from it.
  QSet<QString> badColors;         ///< colours of the theme that are no colours
  bool colorsLost = false;         ///< no colour of the theme can be found
  QSet<QString> lostSkins;         ///< skins without any texture that the theme uses
  QSet<QString> picturelessSkins;  ///< skins none of whose pictures is there
  QSet<QString> lostLanguages;     ///< languages without any words that the theme uses

  const IniFile& theme() const { return *file; }
};

/// The sections of a theme's objects: the first of each name, without those about the theme itself. Those whose line is
/// none that the preview reads are told by checkHeads.
std::vector<const IniSection*> objectsOf(const IniFile& theme);

/// The key under which the words of an object are looked up: its Text, or the name of a text. Empty for other objects.
QString wordsKeyOf(const IniSection& object);

/// The values, but empty ones, of all keys of that group in the theme.
QSet<QString> valuesOf(const IniFile& theme, themefiles::KeyGroup group);

/// Whether a colour is one of the program's or the players'. Those are looked up before the theme's.
bool isBuiltInColor(const CheckedTheme& theme, const QString& name);

/// The state that the editor would have after opening the theme with that skin and language, from these files. Names
/// may be empty.
themefiles::ModuleState openState(const CheckedTheme& theme, const QString& skin, const QString& language);

/// Drops the reports of readers whose failures become findings.
class HeardReports : public platform::StatusLine {
 public:
  bool heard = false;

 protected:
  void showReport(const QString& /*text*/) override { heard = true; }
};

// The checks that draw nothing. Those further down go by what the ones before have found.

/// Letters of another code than the game's. `table` is the section in which names are looked up.
void checkLetters(const IniFile& file, const QString& table, Findings& findings);

/// Lines of sections that the preview doesn't take for such. Blanks at their ends matter in a theme only.
void checkHeads(const IniFile& file, bool isTheme, Findings& findings);

/// Sections and keys that a file has more than once. `only` limits the keys to these names, in upper case.
void checkDoubles(const IniFile& file, Findings& findings, const std::optional<QSet<QString>>& only = std::nullopt);

/// Sections that no screen lists or that nothing draws.
void checkSections(const CheckedTheme& theme, Findings& findings);

/// The theme's colours: what is no colour, what no object uses, and more than there is room for.
void checkColors(CheckedTheme& theme, Findings& findings);

/// Textures of the skins, and the pictures in the folder.
void checkSkins(CheckedTheme& theme, Findings& findings);

/// Words that a language lacks.
void checkWords(CheckedTheme& theme, Findings& findings);

/// Names of colours and textures that the preview doesn't look up, and that are in no table. After the drawing.
void checkGameNames(const CheckedTheme& theme, Findings& findings);

/// Values that the editor of their key couldn't enter. After the drawing.
void checkValues(const CheckedTheme& theme, Findings& findings);

/// The keys of all words that the theme uses, in upper case.
QSet<QString> wordsOf(const IniFile& theme);

/// Words of a language that none of the themes uses.
void checkUnusedWords(const IniFile& language, const QSet<QString>& used, Findings& findings);

}  // namespace themecheck
