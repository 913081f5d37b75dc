#pragma once

#include <QPoint>

namespace toolwindow {

class Form2;

/// Shows the menu of a row of the grid, or that of Command2: its one entry puts the saved value back. Where nothing can
/// be put back, the menu of a row only tells what was saved. None is shown where nothing differs.
void showRowMenu(Form2& form, int row, const QPoint& place);
void showColorMenu(Form2& form, const QPoint& place);

/// Shows the menu of an object, which tells why its row is bold or grey; none if there is nothing to tell.
void showObjectMenu(Form2& form, int row, const QPoint& place);

}  // namespace toolwindow
