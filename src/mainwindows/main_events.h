#pragma once

namespace mainwindows {

class Form1;

/// Ties the events of the main window to its commands, and the work queue to its two works.
void connectEvents(Form1& form);

}  // namespace mainwindows
