#pragma once

namespace toolwindow {

class Form2;

/// Update: takes the value of the editor that fits the selected row's key, writes it into the working copy that owns
/// it, puts it into the row, marks the theme as changed, enables Save, redraws the preview and the mark, and gives the
/// focus back to the grid. A failure is reported and leaves out the steps behind it.
void Command1_Click(Form2& form);

}  // namespace toolwindow
