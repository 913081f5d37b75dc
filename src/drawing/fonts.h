#pragma once

#include <QFont>
#include <QString>

namespace drawing {

/// A font isn't drawn larger than this.
constexpr double LargestPoints = 2160;

/// The font without hinting and without colour fringes, so that a text is the same picture on every machine with the
/// same fonts.
QFont inGreySteps(const QFont& font);

/// The font of a face, or its substitute where the machine lacks it, in grey steps and still without a size.
QFont faceFont(const QString& face);

/// The font of a control: the face at a height in pixels.
QFont controlFont(const QString& face, int pixels);

/// The font of a property as it is drawn: its face or what stands in for it, at its own size.
QFont drawnFont(const QFont& font);

}  // namespace drawing
