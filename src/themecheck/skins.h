#pragma once

#include "themecheck/checked_theme.h"
#include "themecheck/steps.h"

namespace themecheck {

/// Adds the check of the skins' textures, and of the pictures in the folder. The skins stay as they are until it is
/// done.
void addSkinSteps(CheckedTheme& theme, Findings& findings, Steps& steps);

}  // namespace themecheck
