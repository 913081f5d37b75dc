#pragma once

#include <span>
#include <variant>

#include <QFont>

#include "drawing/system_colours.h"
#include "toolbar/picture.h"

namespace toolbar {

/// The properties of the toolbar, with the values of a new one (the font comes from its surroundings). A colour has
/// red in its low byte or names a system colour; measures are pixels.
struct Properties {
  qint16 Appearance = 0;  ///< kept, and nothing else
  quint32 BackColor = drawing::ButtonFaceColor;
  quint32 RectBorderColor = drawing::ButtonFaceColor;  ///< border of the box of ButtonsMode 4
  bool RectBorderColorAutoBlend = true;                ///< takes that border from HoverColor instead
  qint16 BorderStyle = 0;                              ///< 0 none, 1 raised frame, 2 sunken frame
  bool Enabled = true;                                 ///< a look only
  QFont Font;
  quint32 ForeColor = 0;
  int ButtonsPerRow = 3;
  int ButtonsPerRow_Chev = 3;  ///< in the popup
  bool ShowChevron = false;    ///< hides behind a chevron what has no room
  int ButtonsWidth = 32;
  int ButtonsHeight = 32;
  int ButtonsSeperatorWidth = 10;
  bool ShowSeperator = true;
  PictureReference Background = std::make_shared<Picture>();  ///< tiled when BackGradient is 0
  quint32 HoverColor = drawing::ButtonFaceColor;
  int TooTipStyle = 0;  ///< 1 rectangular tip, anything else balloon
  quint32 ToolTipBackCol = 0xE6FDFD;
  quint32 ToolTipForeCol = 0;
  int BackGradient = 0;  ///< kind 0 to 6
  quint32 BackGradientCol = 0xFFFFFF;
  int ButtonsMode = 3;                                  ///< look of the buttons, 0 to 6
  quint32 ButtonsBackColor = drawing::ButtonFaceColor;  ///< also the end colour of a face gradient
  quint32 ButtonsGradientCol = 0xFFFFFF;                ///< the start colour
  int ButtonsGradient = 0;                              ///< kind 0 to 6
};

/// One property of any of the types in use.
using Property = std::variant<qint16 Properties::*, int Properties::*, quint32 Properties::*, bool Properties::*,
                              QFont Properties::*, PictureReference Properties::*>;

/// What a change makes the control do.
enum class Effect { None, Repaint, RepaintBackground, LayOut };

struct PropertyRow {
  QStringView name;
  Property property;
  Effect onWrite;
};

/// All of them.
std::span<const PropertyRow> propertyRows();
/// The row of a property.
const PropertyRow& rowOf(const Property& property);

/// What choosing a look for the buttons does to the other properties; an unknown one does nothing.
void ApplyButtonsMode(Properties& properties, int mode);

}  // namespace toolbar
