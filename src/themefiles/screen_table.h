#pragma once

#include <QString>

#include "themefiles/module_state.h"

/// The screens of the game, and which of its sections each of them shows.
namespace themefiles {

/// Fills the 32 rows.
void InitScreenTable(ModuleState& state);

/// The stem of the screen shown as `name`; the name itself when no row has it.
QString stemOf(const ModuleState& state, const QString& name);

/// The filter that a screen asks for; empty for most.
TagFilter filterOf(const QString& screenName);

}  // namespace themefiles
