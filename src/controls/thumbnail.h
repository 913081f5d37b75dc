#pragma once

class QFileDialog;

namespace controls {

/// Shows a thumbnail of the file that is current in the dialog, beside its list. A dialog of the desktop has no place
/// for it and stays as it is.
void addThumbnail(QFileDialog& dialog);

}  // namespace controls
