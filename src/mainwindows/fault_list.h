#pragma once

namespace toolwindow {
class Form2;
}

namespace mainwindows {

class ThemeReview;

/// Shows the list window of what the theme check finds in the open theme.
void showFaults(toolwindow::Form2& form, ThemeReview& review);

}  // namespace mainwindows
