#pragma once

#include <vector>

#include <QHash>
#include <QString>

#include "platform/ini_text.h"
#include "platform/status_line.h"
#include "themefiles/module_state.h"

namespace themefiles {

/// A row of the value grid: a key of the selected section.
struct ValueRow {
  QString Item;   ///< all that precedes the first "=", including blanks
  QString Value;  ///< without blanks at its ends
};

/// The key lines of a section in the theme's working copy, in file order, duplicates included. None if the section is
/// missing. Also fills the state's CursorRect: of duplicates the last one counts, and without a FONT key its Font
/// stays. Reports a file that can't be read, and a SIZE or FONT that is out of range; such a field stays as it was.
std::vector<ValueRow> ReadTag(ModuleState& state, const QString& Section, platform::StatusLine& status);

/// The value that a key line of a theme gives its row: what stands between its first two "=".
QString rowValue(QByteArrayView line);

/// The rows of all sections of a theme, by the section's name in upper case.
QHash<QString, std::vector<ValueRow>> allTags(const platform::IniText& theme);

}  // namespace themefiles
