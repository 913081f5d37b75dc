#pragma once

#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

namespace themecheck {

enum class Level { Error, Warning, Note };

/// The kinds of findings. A table in findings.cpp has their levels and texts.
enum class Kind {
  CantBeRead,
  CantBeOpened,
  UnclosedHead,
  UnopenedHead,
  FollowedHead,
  TooManyColors,
  BadColor,
  NoTable,
  NoWordsTable,
  EmptyTable,
  EmptyWordsTable,
  NoPictures,
  HidingMark,
  WordsHidingMark,
  Mark,
  Utf8,
  LeftOut,
  NameLeftOut,
  NoPlace,
  Hidden,
  OutsideSurface,
  NoScreen,
  BehindScreen,
  IndentedHead,
  NoKind,
  NoButton,
  TextNumber,
  BeyondTexts,
  DoubledSection,
  DoubledKey,
  NoNumber,
  OutsideList,
  NoWords,
  NoLanguage,
  GameColor,
  GameTexture,
  GameEmptyTexture,
  LackingTexture,
  OtherCase,
  NoEditor,
  UnusedColor,
  UnusedTexture,
  UnusedWords,
  UnusedPicture,
};

/// The place of a finding in the files.
struct Place {
  QString file;     ///< as findings name it
  int line = 1;     ///< from 1; that is also the place of a file as a whole
  int column = 0;   ///< from 1, of the key or the value; 0 if it is about neither
  QString section;  ///< empty if it is about none
  QString key;
};

/// The skin, the language and the colour scheme in which something was found; empty if it doesn't depend on them.
struct Setting {
  QString skin;
  QString language;
  QString scheme;
};

struct Finding {
  Level level = Level::Note;
  Place place;
  std::vector<Place> others;  ///< the same, in further sections, by their lines
  QString text;
  QStringList skins;      ///< in which it was found; empty if it doesn't depend on them
  QStringList languages;  ///< the same
  QStringList schemes;    ///< the same
  QString where;          ///< those of the three that have to be named, as text
};

/// How many skins, languages and colour schemes a theme has. A finding that holds for all of them names none.
struct Scope {
  qsizetype skins = 0;
  qsizetype languages = 0;
  qsizetype schemes = 0;
};

/// What stands behind the text of a finding: "; the same in 2 more sections". Empty without any.
QString furtherSections(const Finding& finding);

/// "error", "warning" or "note".
QString nameOf(Level level);

/// Collects findings: each once, with all skins, languages and colour schemes in which it was found. What has one cause
/// in many sections, as a colour that is in no table, is one finding at the first of them, with their number.
class Findings {
 public:
  /// Adds a finding. `fill` replaces %1 and %2 in the text of its kind.
  void add(Kind kind, const Place& place, const QStringList& fill = {}, const Setting& setting = {});
  /// Whether what a render left out is told for that key of that section, or the section as a whole is.
  bool isTold(const QString& section, const QString& key) const;
  /// All findings, sorted by file and line.
  std::vector<Finding> taken(const Scope& scope) const;

 private:
  struct Entry {
    Finding finding;
    std::map<QString, Place> sections;  ///< by their names in upper case
  };

  std::map<std::tuple<QString, Level, QString, int, int, QString, QString>, Entry> entries_;
  std::set<std::pair<QString, QString>> told_;  ///< sections and keys in upper case; the key is empty for a whole one
};

/// Takes the place of a finding from the first of all its places, which stand in `others`.
void placeFirst(Finding& finding);

/// Sorts by file and line, and drops what is there twice.
void sortFindings(std::vector<Finding>& findings);

}  // namespace themecheck
