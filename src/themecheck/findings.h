#pragma once

#include <map>
#include <tuple>
#include <vector>

#include <QString>
#include <QStringList>

namespace themecheck {

enum class Level { Error, Warning, Note };

/// The kinds of findings. A table in findings.cpp has their levels and texts.
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

/// The place of a finding in the files.
struct Place {
  QString file;     ///< relative to the game folder, with slashes
  int line = 0;     ///< from 1; 0 for the file as a whole
  QString section;  ///< empty if it is about none
  QString key;
};

/// The skin and the language in which something was found; empty if it doesn't depend on them.
struct Setting {
  QString skin;
  QString language;
};

struct Finding {
  Level level = Level::Note;
  Place place;
  QString text;
  QStringList skins;      ///< in which it was found; empty if it doesn't depend on them
  QStringList languages;  ///< the same
  QString where;          ///< these skins and languages as text; empty if they are all that were checked
};

/// "error", "warning" or "note".
QString nameOf(Level level);

/// Collects findings: each once, with all skins and languages in which it was found.
class Findings {
 public:
  /// Adds a finding. `fill` replaces %1 and %2 in the text of its kind.
  void add(Kind kind, const Place& place, const QStringList& fill = {}, const Setting& setting = {});
  /// All findings; `skins` and `languages` are those that were checked.
  std::vector<Finding> taken(const QStringList& skins, const QStringList& languages) const;

 private:
  std::map<std::tuple<QString, int, Level, QString, QString, QString>, Finding> findings_;
};

/// Sorts by file and line.
void sortFindings(std::vector<Finding>& findings);

}  // namespace themecheck
