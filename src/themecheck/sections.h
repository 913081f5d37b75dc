#pragma once

#include <optional>

#include <QSet>
#include <QString>

#include "themecheck/checked_theme.h"
#include "themecheck/steps.h"

namespace themecheck {

/// Lines of sections that the preview doesn't take for such. Blanks at their ends matter in a theme only.
void checkHeads(const IniFile& file, bool isTheme, Findings& findings);

/// Sections and keys that a file has more than once. `only` limits the keys to these names, in upper case.
void checkDoubles(const IniFile& file, Findings& findings, const std::optional<QSet<QString>>& only = std::nullopt);

/// Adds the check for sections that no screen lists or that nothing draws.
void addSectionSteps(const CheckedTheme& theme, Findings& findings, Steps& steps);

}  // namespace themecheck
