#pragma once

#include <array>
#include <optional>
#include <vector>

#include "platform/profile_strings.h"
#include "themefiles/key_table.h"
#include "themefiles/module_state.h"

namespace toolwindow {

/// A key's line as it was saved, and where it belongs.
struct SavedLine {
  QString themefiles::ThemePaths::*copy;
  QString section;
  QString key;
  QByteArray line;
};

/// What was saved where a value differs now.
struct SavedValue {
  QString value;                 ///< as the grid shows it
  QString told;                  ///< the same for a tool tip; of a reference also what it stands for, if that differs
  std::vector<SavedLine> lines;  ///< that bring it back: the theme's, then the words' or the picture's
};

/// The working copies beside what Open or Save last copied. Reads each working copy once.
class SavedState {
 public:
  explicit SavedState(const themefiles::ModuleState& state);

  /// What was saved for a key of the theme. Of a reference (by the key's `group`) the words or the picture's file
  /// count, too. None when nothing differs.
  std::optional<SavedValue> of(const QString& section, const QString& key,
                               std::optional<themefiles::KeyGroup> group) const;

  /// Whether a key of the object differs.
  bool differsIn(const QString& section) const;

 private:
  struct File {
    File(const QString& path, const QByteArray& savedBytes);
    bool differs() const { return now != saved; }

    QByteArray now, saved;
    platform::ProfileSections nowSections, savedSections;
  };

  /// The section of a language or a skin that references lead to.
  struct Target {
    Target(const File& file, QString themefiles::ThemePaths::*working, const char* name);

    bool differs;
    QString themefiles::ThemePaths::*copy;
    const char* section;
    platform::ProfileKeys now, saved;
  };

  const Target* targetOf(std::optional<themefiles::KeyGroup> group) const;
  static bool differsIn(const Target* target, const platform::ProfileLine& reference);
  static void addTarget(SavedValue& saved, const Target& target, const platform::ProfileLine& reference);

  File theme_, skin_, language_;
  Target textures_, texts_;
};

}  // namespace toolwindow
