#pragma once

class QDialog;

namespace controls {

/// Runs the dialog and returns its result. Afterwards it gives the focus back to the window and control that had it:
/// window managers would give it to the main window.
int runModal(QDialog& dialog);

}  // namespace controls
