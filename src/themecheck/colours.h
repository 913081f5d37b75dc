#pragma once

#include "themecheck/checked_theme.h"

namespace themecheck {

/// The theme's colours: what is no colour, what no object uses, and more than there is room for.
void checkColors(CheckedTheme& theme, Findings& findings);

}  // namespace themecheck
