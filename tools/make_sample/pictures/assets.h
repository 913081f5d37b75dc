#pragma once

#include "output.h"

namespace sample {

/// The editor's own pictures: the start picture, the program's icon and the icons of the buttons.
void writeAssets(const Output& output);

/// The program's icon in the sizes that desktops look for, each named by its width.
void writeProgramIcons(const Output& output);

QImage startPicture();

}  // namespace sample
