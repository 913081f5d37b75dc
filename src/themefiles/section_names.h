#pragma once

#include <QString>

/// The sections that names are looked up in: colours in the theme, textures in the skin, words in the language.
namespace themefiles {

inline const QString ColorsSection = QStringLiteral("Colors");
inline const QString TexturesSection = QStringLiteral("Textures");
inline const QString TextSection = QStringLiteral("Text");

}  // namespace themefiles
