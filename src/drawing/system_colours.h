#pragma once

#include <QColor>
#include <QtGlobal>

namespace drawing {

/// Bit 31 of a colour value: the low byte is then an index of the system colours.
inline constexpr quint32 SystemColorBit = 0x80000000U;

/// The system colours, by their index.
enum class SystemColor {
  ScrollBar,
  Desktop,
  ActiveCaption,
  InactiveCaption,
  Menu,
  Window,
  WindowFrame,
  MenuText,
  WindowText,
  CaptionText,
  ActiveBorder,
  InactiveBorder,
  Workspace,
  Highlight,
  HighlightText,
  ButtonFace,
  ButtonShadow,
  GreyText,
  ButtonText,
  InactiveCaptionText,
  ButtonHighlight,
  DarkShadow,
  Light,
  TipText,
  Tip,
};

/// The colour value that names a system colour.
constexpr quint32 colorValue(SystemColor color) {
  return SystemColorBit | static_cast<quint32>(color);
}
inline constexpr quint32 ButtonFaceColor = colorValue(SystemColor::ButtonFace);

/// The colour of the classic palette.
QColor systemColor(SystemColor color);

/// The colour of a 32-bit colour value: red in the low byte, or a system colour when bit 31 is set.
QColor colorOf(quint32 value);

/// The colour value of a colour: red in the low byte.
quint32 colorValue(const QColor& color);

}  // namespace drawing
