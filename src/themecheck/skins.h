#pragma once

#include "themecheck/checked_theme.h"

namespace themecheck {

/// Textures of the skins, and the pictures in the folder.
void checkSkins(CheckedTheme& theme, Findings& findings);

}  // namespace themecheck
