#pragma once

#include "output.h"

namespace sample {

/// The theme with every screen, and its skins Dusk and Neon.
void writeStagelight(const Output& output);

/// The theme with every fault that a theme's author can make, and its skins Grey and Spare.
void writeWorkbench(const Output& output);

/// A theme that has no skin.
void writeBare(const Output& output);

void writeLanguages(const Output& output);

}  // namespace sample
