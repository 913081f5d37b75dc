#pragma once

#include <QString>

#include "themefiles/module_state.h"

/// The screens of the game, and which sections each of them shows.
namespace themefiles {

/// Fills the state's ScreenTable.
void InitScreenTable(ModuleState& state);

/// The stem of the screen of that name, or the name itself if there is no such screen.
QString stemOf(const ModuleState& state, const QString& name);

/// The filter of a screen; empty for most.
TagFilter filterOf(const QString& screenName);

}  // namespace themefiles
