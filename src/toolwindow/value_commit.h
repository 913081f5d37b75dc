#pragma once

#include "toolwindow/saved_state.h"

namespace toolwindow {

class Form2;

/// Update: takes the value of the editor that fits the selected row's key, writes it into the working copy that owns
/// it, puts it into the row, marks the theme as changed, enables Save, redraws the preview and the mark, and gives the
/// focus back to the grid. A failure is reported and leaves out the steps behind it.
void Command1_Click(Form2& form);

/// Puts a value of the grid's row back as it was saved; all goes on as after an Update. An open editor of the row is
/// loaded anew.
void putSavedBack(Form2& form, int row, const SavedValue& saved);

}  // namespace toolwindow
