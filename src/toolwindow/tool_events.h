#pragma once

namespace toolwindow {

class Form2;

/// Ties the events of the tool window's controls to what they do.
void ConnectEvents(Form2& form);

}  // namespace toolwindow
