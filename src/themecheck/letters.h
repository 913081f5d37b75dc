#pragma once

#include <QString>

#include "themecheck/findings.h"
#include "themecheck/ini_file.h"

namespace themecheck {

/// Letters of another code than the game's. `table` is the section in which names are looked up.
void checkLetters(const IniFile& file, const QString& table, Findings& findings);

}  // namespace themecheck
