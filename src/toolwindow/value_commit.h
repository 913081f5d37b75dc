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

/// Commits values of one section of the theme, as far as they are whole numbers, by one write: all goes on as after an
/// Update of each, but the focus stays. Rows and record follow when the section is still the selected one. Gives
/// whether the write reached the file; if not, nothing has changed.
bool commitValues(Form2& form, const QString& section, const std::vector<std::pair<QString, QString>>& values);

/// Puts a value of the grid's row back as it was saved; all goes on as after an Update. An open editor of the row is
/// loaded anew.
void putSavedBack(Form2& form, int row, const SavedValue& saved);

}  // namespace toolwindow
