#pragma once

#include <QString>
#include <QStringList>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

/// Colours by name: the theme's own, the players', and the three words that follow the colour scheme.
namespace themefiles {

inline constexpr int RowsPerScheme = 3;

/// The three names that stand for the dark, light and lightest colour of the scheme in force.
const QStringList& programColorNames();

/// Reads the section Colors of the theme's working copy into ThemeColors and fills the built-in tables. More keys than
/// 99 are reported and leave the built-in tables as they are.
void ReadColors(ModuleState& state, platform::StatusLine& status);

/// Names of the nine colour schemes in table order (empty ones while the tables are).
QStringList schemeNames(const ModuleState& state);

/// Value of a scheme by Offset: 0 the dark, 1 the light, 2 the lightest colour; empty for a scheme that isn't there.
/// Throws std::out_of_range where another Offset leads out of the table.
QString GetBaseColor(const ModuleState& state, qint16 Offset, const QString& scheme);

/// The colour string of a name, `scheme` being in force; empty for a name that is in no table.
QString ResolveColor(const ModuleState& state, const QString& Name, const QString& scheme);

/// Red + 256 x green + 65536 x blue of a colour string, kept to 24 bits; 0 for fewer than three fields, and for a
/// negative number or one outside 16 bits.
qint32 ColorToRGB(const QString& Color);

}  // namespace themefiles
