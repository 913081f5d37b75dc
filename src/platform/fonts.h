#pragma once

#include <QFont>
#include <QString>

namespace platform {

/// The font of a face, or its substitute where the machine lacks it, measured in pixels (96 of them an inch), without
/// hinting and without colour fringes, so that a text is the same picture on every machine with the same fonts.
QFont FaceFont(const QString& face);

/// The font of a control: the face at a height in pixels.
QFont ControlFont(const QString& face, int pixels);

/// The font of a property as it is drawn: its face or what stands in for it, at its own size.
QFont DrawnFont(const QFont& font);

}  // namespace platform
