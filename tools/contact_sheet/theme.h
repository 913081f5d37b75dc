#pragma once

#include <QString>
#include <QTemporaryDir>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

namespace contactsheet {

/// A theme with one of its skins and one language, opened on copies in a folder of its own: nothing is written beside
/// the game's files. Pictures come from the game folder.
class Theme {
 public:
  /// Throws platform::Failure for a file that can't be read.
  Theme(const QString& gameFolder, const QString& theme, const QString& skin, const QString& language,
        platform::StatusLine& status);

  /// The state of an editor that has just opened the theme.
  const themefiles::ModuleState& state() const { return state_; }

  /// The colour scheme of that name, the first one for an empty name. Throws platform::Failure for an unknown one.
  QString schemeNamed(const QString& name) const;

 private:
  QTemporaryDir folder_;
  themefiles::ModuleState state_;
};

}  // namespace contactsheet
