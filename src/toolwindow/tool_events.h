#pragma once

namespace toolwindow {

class Form2;

/// Ties the events of the tool window's controls to what they do.
void connectEvents(Form2& form);

}  // namespace toolwindow
