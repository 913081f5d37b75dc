#pragma once

#include <QFont>
#include <QString>

namespace drawing {

/// The largest size at which a font is drawn.
constexpr double LargestPoints = 2160;

/// The font with plain grey antialiasing: no hinting and no colour fringes. So a text has the same pixels on every
/// machine with the same fonts.
QFont inGreySteps(const QFont& font);

/// The font of a face or, if it isn't installed, of its substitute. Its size is not set yet.
QFont faceFont(const QString& face);

/// The font of a face at a size in pixels, for controls.
QFont controlFont(const QString& face, int pixels);

/// The font that is drawn for a font property: of its face or the substitute, in its own size and style.
QFont drawnFont(const QFont& font);

}  // namespace drawing
