#pragma once

namespace mainwindows {

class Form1;

/// Lists and draws the screen anew, with all pictures read from their files. The object and the selected button stay
/// chosen if they are still there.
void refreshScreen(Form1& form);

/// Fills the list of the chosen screen; called by the work queue.
void listScreen(Form1& form);

/// Draws the chosen screen; called by the work queue.
void drawScreen(Form1& form);

}  // namespace mainwindows
