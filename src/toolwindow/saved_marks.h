#pragma once

#include <QPoint>

namespace toolwindow {

class Form2;

/// Marks what differs from the saved state: rows of the grid, with what was saved in their tool tips, and the objects
/// that have such a row.
void markSaved(Form2& form);

/// The menu of a row that differs, and of the theme's colour on Command2: it puts the saved value back. There is none
/// where nothing can be put back.
void showRowMenu(Form2& form, int row, const QPoint& place);
void showColorMenu(Form2& form, const QPoint& place);

}  // namespace toolwindow
