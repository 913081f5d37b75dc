#pragma once

#include <QColor>
#include <QtGlobal>

namespace drawing {

/// If this bit of a colour value is set, the low byte is the index of a system colour.
inline constexpr quint32 SystemColorBit = 0x80000000U;

/// The system colours. The values are their indexes.
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

/// The system colour in the classic palette.
QColor systemColor(SystemColor color);

/// The colour of a colour value: red in the low byte, or a system colour if SystemColorBit is set.
QColor colorOf(quint32 value);

/// The colour value with red in the low byte.
quint32 colorValue(const QColor& color);

}  // namespace drawing
