#pragma once

#include <map>
#include <tuple>
#include <vector>

#include <QString>
#include <QStringList>

namespace themecheck {

enum class Level { Error, Warning, Note };

/// What can be found. Levels and words are in a table of findings.cpp.
enum class Kind {
  CantBeRead,
  CantBeOpened,
  TooManyColors,
  LeftOut,
  Hidden,
  OutsideSurface,
  NoScreen,
  DoubledSection,
  DoubledKey,
  NoNumber,
  OutsideList,
  NoEditor,
  BeyondTexts,
  NoWords,
  LackingTexture,
  OtherCase,
  UnusedColor,
  UnusedTexture,
  UnusedWords,
  UnusedPicture,
};

/// Where a finding stands.
struct Place {
  QString file;     ///< relative to the game folder, with slashes
  int line = 0;     ///< from 1; 0 for the file as a whole
  QString section;  ///< empty where it is about none
  QString key;
};

/// The skin and the language that a finding was made with; empty where it depends on none.
struct Setting {
  QString skin;
  QString language;
};

struct Finding {
  Level level = Level::Note;
  Place place;
  QString text;
  QStringList skins;      ///< that it holds for; none where it depends on none
  QStringList languages;  ///< the same
  QString where;          ///< those that it holds for, where these aren't all that were checked
};

/// "error", "warning" or "note".
QString nameOf(Level level);

/// Gathers findings: each once, with all the settings it was made with.
class Findings {
 public:
  /// `fill` takes the places of %1 and %2 in the kind's words.
  void add(Kind kind, const Place& place, const QStringList& fill = {}, const Setting& setting = {});
  /// All of them, after the skins and languages that were gone through.
  std::vector<Finding> taken(const QStringList& skins, const QStringList& languages) const;

 private:
  std::map<std::tuple<QString, int, Level, QString, QString, QString>, Finding> findings_;
};

/// Sorts by file and line.
void sortFindings(std::vector<Finding>& findings);

}  // namespace themecheck
