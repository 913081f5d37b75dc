#pragma once

namespace toolwindow {

class Form2;

/// Shows the list window of what differs from the saved state over the whole theme, and puts it back.
void showChanges(Form2& form);

}  // namespace toolwindow
