#pragma once

namespace toolwindow {

class Form2;

/// A row of the grid has been clicked: loads the row's value into the editor that fits its key and opens the editor's
/// frame; for a key outside the table closes an open one. A failure (a value outside its list) is reported, and all
/// frames stay hidden.
void ListView1_ItemClick(Form2& form, int row);

}  // namespace toolwindow
