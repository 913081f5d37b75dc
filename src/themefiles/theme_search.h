#pragma once

#include <memory>
#include <vector>

#include <QString>

#include "themefiles/module_state.h"

/// Finds objects of a theme by their names, values and words.
namespace themefiles {

/// What a search has found: an object of a screen, and the row of its grid that matches.
struct Hit {
  QString screen;
  QString object;  ///< empty for the screen itself
  int row = -1;    ///< -1 if no row matches
  QString key;     ///< the key of that row
  QString shown;   ///< the text of the hit: "Main Screen, MainTextGo: Text = GO, Go on"
};

/// The best hits first; equally good ones in the order of the screens and of their lists.
struct Hits {
  std::vector<Hit> first;
  int count = 0;  ///< of all hits, including those that are not in `first`
};

/// Searches the open theme: its screens, and their objects with the rows of their grids and the words that they show.
class ThemeSearch {
 public:
  /// Reads the working copies. Throws platform::Failure if one can't be read.
  explicit ThemeSearch(const ModuleState& state);

  /// The screens and objects that contain every word of `typed`, in any case; at most `most` of them. "x=" finds the
  /// key X. Names that begin with a word come before names that hold it, and these before values. A screen's own
  /// section is found only by its names.
  Hits find(const QString& typed, int most) const;

 private:
  struct Line {
    int row = -1;
    QString key;
    QString shown;
    QString upper;
  };
  using Lines = std::vector<Line>;
  struct Entry {
    QString screen;
    QString object;
    QString upperScreen;
    QString upperObject;
    std::shared_ptr<const Lines> lines;
  };
  class Reading;

  static bool has(const Line& line, const QString& word);
  static int rankOf(const Entry& entry, const QStringList& words);
  static Hit hitOf(const Entry& entry, const QStringList& words);

  std::vector<Entry> entries_;
};

}  // namespace themefiles
