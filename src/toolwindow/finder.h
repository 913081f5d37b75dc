#pragma once

namespace toolwindow {

class Form2;

/// Shows the list window that finds screens and objects of the open theme by what stands in them.
void showFinder(Form2& form);

}  // namespace toolwindow
