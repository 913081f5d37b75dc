#pragma once

class QFileDialog;

namespace controls {

/// Shows a thumbnail of the dialog's selected file beside its list of files. Does nothing for a dialog of the desktop,
/// which has no place for it.
void addThumbnail(QFileDialog& dialog);

}  // namespace controls
