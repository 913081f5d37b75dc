#pragma once

#include <optional>
#include <utility>

#include <QSet>
#include <QString>

#include "platform/status_line.h"
#include "themecheck/findings.h"
#include "themecheck/ini_file.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"
#include "themefiles/section_names.h"

namespace themecheck {

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

/// As in "1 name of the theme is" and "3 names of the theme are".
QString namesOfTheme(qsizetype count);

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

}  // namespace themecheck
