#pragma once

#include <QString>
#include <QStringList>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

/// Colours by name: those of the theme, of the players, and three whose value depends on the colour scheme.
namespace themefiles {

inline constexpr int RowsPerScheme = 3;

/// The names of the dark, light and lightest colour of the current scheme.
const QStringList& programColorNames();

/// Fills ThemeColors from the section Colors of the theme's working copy, then the built-in tables. More than 99 keys
/// are reported, and the built-in tables stay as they are.
void ReadColors(ModuleState& state, platform::StatusLine& status);

/// The names of the nine colour schemes in table order; empty strings before ReadColors.
QStringList schemeNames(const ModuleState& state);

/// A colour string of a scheme: Offset is 0 for the dark, 1 for the light, 2 for the lightest colour. Empty for an
/// unknown scheme. Throws std::out_of_range if the Offset leads out of the table.
QString GetBaseColor(const ModuleState& state, qint16 Offset, const QString& scheme);

/// The colour string of a name while `scheme` is the current one. Empty for an unknown name.
QString ResolveColor(const ModuleState& state, const QString& Name, const QString& scheme);

/// Red + 256 * green + 65536 * blue of a colour string, cut to 24 bits. 0 for fewer than three fields, a negative
/// number or one outside 16 bits.
qint32 ColorToRGB(const QString& Color);

}  // namespace themefiles
