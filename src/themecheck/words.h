#pragma once

#include <QSet>
#include <QString>

#include "themecheck/checked_theme.h"

namespace themecheck {

/// Words that a language lacks.
void checkWords(CheckedTheme& theme, Findings& findings);

/// The keys of all words that the theme uses, in upper case.
QSet<QString> wordsOf(const IniFile& theme);

/// Words of a language that none of the themes uses.
void checkUnusedWords(const IniFile& language, const QSet<QString>& used, Findings& findings);

}  // namespace themecheck
