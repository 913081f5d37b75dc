#pragma once

#include <QPoint>

namespace toolwindow {

class Form2;

/// Marks what differs from the saved state in bold: rows of the grid, whose tool tips tell the saved values, and the
/// objects that have such a row.
void markSaved(Form2& form);

/// Shows the menu of a row of the grid, or that of Command2: its one entry puts the saved value back. No menu is shown
/// where nothing can be put back.
void showRowMenu(Form2& form, int row, const QPoint& place);
void showColorMenu(Form2& form, const QPoint& place);

}  // namespace toolwindow
