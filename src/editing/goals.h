#pragma once

#include <QString>

#include "editing/differences.h"
#include "themefiles/theme_search.h"

namespace editing {

/// The object on a screen, and its row, that a key of the open theme's files belongs to: the one whose key it is, or
/// the first one that uses a colour, a texture or words of that name. `screen` is looked at first. Throws
/// platform::Failure if no screen shows it.
themefiles::Hit goalOf(const themefiles::ModuleState& state, const QString& screen, const KeyPlace& place);

}  // namespace editing
