#pragma once

#include <memory>
#include <vector>

#include <QHash>
#include <QString>

#include "themefiles/module_state.h"

/// Finding objects of a theme by what stands in them.
namespace themefiles {

/// Where a search leads to: an object of a screen, and the row of its grid that has what was looked for.
struct Hit {
  QString screen;
  QString object;  ///< empty for the screen itself
  int row = -1;    ///< -1 without one
  QString key;     ///< as the row shows it
  QString shown;   ///< the whole as the user reads it: "Main Screen, MainTextGo: Text = GO, Go on"
};

/// The best hits first, then in the order of the screens and of their lists.
struct Hits {
  std::vector<Hit> first;
  int count = 0;  ///< with those that are too many
};

/// What can be found in the theme and the language: the screens, their objects as List1 has them, these with the rows
/// of their grids and with the words that they show.
class ThemeSearch {
 public:
  /// Reads the working copies. Throws platform::Failure when one can't be read.
  explicit ThemeSearch(const ModuleState& state);

  /// The screens and objects in which every word of `typed` occurs, in any case; at most so many of them.
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

  static int rankOf(const Entry& entry, const QStringList& words);
  static Hit hitOf(const Entry& entry, const QStringList& words);

  std::vector<Entry> entries_;
};

}  // namespace themefiles
