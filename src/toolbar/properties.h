#pragma once

#include <span>
#include <variant>

#include <QFont>

#include "drawing/system_colours.h"
#include "toolbar/picture.h"

namespace toolbar {

/// The properties of the toolbar. The initial values are those of a new one, whose font is the ambient font. Colours
/// are colour values (see drawing::colorOf), measures are in pixels.
struct Properties {
  qint16 Appearance = 0;  ///< stored, but without effect
  quint32 BackColor = drawing::ButtonFaceColor;
  quint32 RectBorderColor = drawing::ButtonFaceColor;  ///< border of buttons in ButtonsMode 4
  bool RectBorderColorAutoBlend = true;                ///< derives that border from HoverColor instead
  qint16 BorderStyle = 0;                              ///< 0 none, 1 raised frame, 2 sunken frame
  bool Enabled = true;                                 ///< changes only the look
  QFont Font;
  quint32 ForeColor = 0;
  int ButtonsPerRow = 3;
  int ButtonsPerRow_Chev = 3;  ///< in the popup
  bool ShowChevron = false;    ///< buttons without room hide in the popup of a chevron
  int ButtonsWidth = 32;
  int ButtonsHeight = 32;
  int ButtonsSeperatorWidth = 10;
  bool ShowSeperator = true;
  PictureReference Background = std::make_shared<Picture>();  ///< tiled if BackGradient is 0
  quint32 HoverColor = drawing::ButtonFaceColor;
  int TooTipStyle = 0;  ///< 1 for a rectangular tip, else a balloon
  quint32 ToolTipBackCol = 0xE6FDFD;
  quint32 ToolTipForeCol = 0;
  int BackGradient = 0;  ///< kind of gradient, see faces.h
  quint32 BackGradientCol = 0xFFFFFF;
  int ButtonsMode = 3;                                  ///< the look of the buttons, 0 to 6
  quint32 ButtonsBackColor = drawing::ButtonFaceColor;  ///< also the end colour of their gradient
  quint32 ButtonsGradientCol = 0xFFFFFF;                ///< the start colour of their gradient
  int ButtonsGradient = 0;                              ///< kind of gradient, see faces.h
};

/// A property of any type.
using Property = std::variant<qint16 Properties::*, int Properties::*, quint32 Properties::*, bool Properties::*,
                              QFont Properties::*, PictureReference Properties::*>;

/// What the control does after a change.
enum class Effect { None, Repaint, RepaintBackground, LayOut };

struct PropertyRow {
  QStringView name;
  Property property;
  Effect onWrite;
};

/// All properties.
std::span<const PropertyRow> propertyRows();
/// The row of a property.
const PropertyRow& rowOf(const Property& property);

/// Sets the other properties that belong to a look of the buttons. An unknown look does nothing.
void ApplyButtonsMode(Properties& properties, int mode);

}  // namespace toolbar
