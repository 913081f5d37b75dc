#pragma once

#include <vector>

#include <QByteArrayView>
#include <QHash>
#include <QString>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

namespace themefiles {

/// One key of the selected section, as the value grid shows it.
struct ValueRow {
  QString Item;   ///< the key as it stands in front of the first "=", blanks included
  QString Value;  ///< without blanks at its ends
};

/// The key lines of the section of that name in the theme's working copy, in file order, doubles too; and the state's
/// CursorRect filled from them (a later double wins; Font keeps its value in a section without one). A section that
/// isn't there gives no rows. A file that can't be read, a SIZE beyond 16 bits and a FONT outside a byte are reported;
/// the record's field then stays.
std::vector<ValueRow> ReadTag(ModuleState& state, const QString& Section, platform::StatusLine& status);

/// The rows of all sections of a theme, as ReadTag gives them; by the name in upper case.
QHash<QString, std::vector<ValueRow>> allTags(QByteArrayView theme);

}  // namespace themefiles
