#pragma once

#include "platform/ini_reading.h"
#include "themefiles/module_state.h"

namespace editing {

/// A working copy beside what Open or Save last copied. Reads the copy once.
struct ComparedFile {
  /// Throws platform::Failure if the working copy can't be read. One that is gone or empty counts as this program wrote
  /// it last, since the next edit makes it anew so.
  ComparedFile(const themefiles::ModuleState& state, QString themefiles::ThemePaths::*of);
  Q_DISABLE_COPY_MOVE(ComparedFile)

  bool differs() const { return now.text().bytes() != saved.text().bytes(); }

  QString themefiles::ThemePaths::*const copy;
  const platform::IniSections now, saved;
};

/// The three of them.
struct ComparedFiles {
  explicit ComparedFiles(const themefiles::ModuleState& state);

  const ComparedFile& of(QString themefiles::ThemePaths::*copy) const;

  const ComparedFile theme, skin, language;
};

/// Whether two lines of a key differ in their value; null is no line.
bool differ(const platform::IniLine* a, const platform::IniLine* b);

}  // namespace editing
