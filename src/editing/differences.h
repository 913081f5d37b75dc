#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "editing/object_places.h"
#include "editing/saved_files.h"
#include "editing/saved_state.h"
#include "themefiles/module_state.h"

namespace editing {

/// A key of a working copy.
struct KeyPlace {
  QString themefiles::ThemePaths::*copy;
  QString section;
  QString key;
};

/// Whether it is a colour of the theme.
bool isColor(const KeyPlace& place);

/// A key that stands otherwise in a working copy than in what was saved.
struct Difference {
  KeyPlace place;
  std::optional<QString> now, saved;  ///< the values; none without such a key
  QString screen = {};                ///< the first one that lists the object; empty for what is no object of a screen
  QString object = {};                ///< as that lists it

  /// "Main Screen, MainStaticLogo: X = 120 (saved: 40)"
  QString told() const;
  /// What was saved can be written back.
  bool canBePutBack() const { return saved.has_value(); }
};

/// All differences of the open theme from its saved state, found in steps, so that a caller can do other things in
/// between. Of equal sections and keys the first counts. Reads each working copy once.
class Differences {
 public:
  /// Throws platform::Failure if a working copy can't be read.
  explicit Differences(const themefiles::ModuleState& state);

  /// Does the next step; false when all has been done.
  bool step();
  /// What was found, when all has been done: the objects by their screens, then colours, textures, words and the rest.
  const std::vector<Difference>& found() const { return found_; }

 private:
  void sort();

  const themefiles::ModuleState& state_;
  ComparedFiles files_;
  size_t file_ = 0;
  std::vector<QByteArrayView> sections_;  ///< of that file, still to be compared
  std::vector<Difference> found_;
  std::optional<ObjectPlaces> places_;
  bool isSorted_ = false;
};

/// How many keys differ. Throws platform::Failure if a working copy can't be read.
int countDifferences(const themefiles::ModuleState& state);

/// The differences of these objects that can be put back, with those of the words and the pictures' files that their
/// references stand for. Throws platform::Failure if a working copy can't be read.
std::vector<KeyPlace> differencesIn(const themefiles::ModuleState& state, const QStringList& objects);

/// The objects of a screen, those that it has now and those that it had when it was saved. Throws as the others do.
QStringList objectsOfScreen(const themefiles::ModuleState& state, const QString& screen);

/// The saved lines of those of the keys that differ. Throws platform::Failure if a working copy can't be read.
std::vector<SavedLine> savedLines(const themefiles::ModuleState& state, const std::vector<KeyPlace>& places);

}  // namespace editing
