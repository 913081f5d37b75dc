#pragma once

class QDialog;

namespace controls {

/// Runs the dialog and gives its result. Then the window and the control that had the keyboard have it again: left to
/// itself, a window manager gives it to the main window.
int runModal(QDialog& dialog);

}  // namespace controls
