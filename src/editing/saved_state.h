#pragma once

#include <optional>
#include <vector>

#include "editing/saved_files.h"
#include "platform/status_line.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"

namespace editing {

/// A key's line as it was saved, and where it belongs.
struct SavedLine {
  QString themefiles::ThemePaths::*copy;
  QString section;
  QString key;
  QByteArray line;
  bool isGone = false;  ///< the working copy has no such key any more
};

/// What was saved where a value differs now.
struct SavedValue {
  QString value;                 ///< as the grid shows it
  QString told;                  ///< for a tool tip: of a reference also its words or file, if they differ
  std::vector<SavedLine> lines;  ///< to write back: the theme's, then the language's or skin's
};

/// Writes saved lines back, those of a file by one write. Throws platform::Failure if that fails.
void putLinesBack(themefiles::ModuleState& state, const std::vector<SavedLine>& lines, platform::StatusLine& status);

class SavedState;

/// The keys of an object, now and as they were saved. Refers to the SavedState.
class SavedObject {
 public:
  SavedObject(const SavedState& files, const QString& section);

  /// What was saved for a key of the theme; none if nothing differs. If the key's `group` makes it a reference, its
  /// words or its picture's file are compared, too.
  std::optional<SavedValue> of(const QString& key, std::optional<themefiles::KeyGroup> group) const;
  /// The same once: none when the key is asked for again. Of equal keys the first one counts.
  std::optional<SavedValue> takeOf(const QString& key, std::optional<themefiles::KeyGroup> group);

  /// What was saved for the colour of the theme that a key of that group names: "colour 'Red' saved: 200 40 40".
  std::optional<SavedValue> colorOf(const QString& key, std::optional<themefiles::KeyGroup> group) const;

  /// Whether a key differs, or a colour that one names.
  bool differs() const;

 private:
  const SavedState& files_;
  QString section_;
  platform::IniKeys now_, saved_;
};

/// What was saved for a key of a section of the theme, or for the colour that it names, if that differs now. Throw as
/// SavedState does.
std::optional<SavedValue> savedColorOf(const themefiles::ModuleState& state, const QString& section,
                                       const QString& key);
std::optional<SavedValue> savedValue(const themefiles::ModuleState& state, const QString& section, const QString& key);

/// The working copies beside what Open or Save last copied. Reads each working copy once.
class SavedState {
 public:
  /// Throws platform::Failure if a working copy can't be read.
  explicit SavedState(const themefiles::ModuleState& state);
  Q_DISABLE_COPY_MOVE(SavedState)

  /// Whether a key of the object differs.
  bool differsIn(const QString& section) const;

 private:
  friend class SavedObject;

  /// The section of a language or a skin that references lead to.
  struct Target {
    Target(const ComparedFile& file, const char* name);

    bool differs;
    QString themefiles::ThemePaths::*copy;
    const char* section;
    platform::IniKeys now, saved;
  };

  const Target* targetOf(std::optional<themefiles::KeyGroup> group) const;
  static bool differsIn(const Target* target, const platform::IniLine& reference);
  bool colorDiffers(const QByteArray& name) const;
  static void addTarget(SavedValue& saved, const Target& target, const platform::IniLine& reference);

  const ComparedFiles files_;
  Target textures_, texts_, colors_;
};

}  // namespace editing
