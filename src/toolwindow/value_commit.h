#pragma once

#include <utility>
#include <vector>

#include <QString>

#include "toolwindow/saved_state.h"

namespace toolwindow {

class Form2;

/// Update: takes the value of the editor that fits the selected row's key, writes it into the working copy that owns
/// it, puts it into the row, marks the theme as changed, enables Save, redraws the preview and the mark, and gives the
/// focus back to the grid. A failure is reported and leaves out the steps behind it.
void Command1_Click(Form2& form);

/// Commits several keys of one section of the theme by one write. What follows is the same as after an Update of each,
/// but the focus stays. The grid's rows and the mark's record follow if the section is still the selected one. Returns
/// whether the write succeeded; if not, nothing has changed.
bool commitValues(Form2& form, const QString& section, const std::vector<std::pair<QString, QString>>& values);

/// Puts the saved value of a row of the grid back. What follows is the same as after an Update. If an editor of the row
/// is open, it is loaded again.
void putSavedBack(Form2& form, int row, const SavedValue& saved);

}  // namespace toolwindow
