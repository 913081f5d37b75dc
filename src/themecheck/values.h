#pragma once

#include "themecheck/checked_theme.h"

namespace themecheck {

/// Names of colours and textures that the preview doesn't look up, and that are in no table. After the drawing.
void checkGameNames(const CheckedTheme& theme, Findings& findings);

/// Values that the editor of their key couldn't enter. After the drawing.
void checkValues(const CheckedTheme& theme, Findings& findings);

}  // namespace themecheck
