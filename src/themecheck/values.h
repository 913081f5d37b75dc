#pragma once

#include "themecheck/checked_theme.h"

namespace themecheck {

/// Names of colours and textures of an object that the preview doesn't look up, and that are in no table. After the
/// drawing.
void checkGameNames(const CheckedTheme& theme, const IniSection& object, Findings& findings);

/// Values of an object that the editor of their key couldn't enter. After the names of all.
void checkValues(const CheckedTheme& theme, const IniSection& object, Findings& findings);

}  // namespace themecheck
