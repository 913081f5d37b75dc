#include "toolbar/properties.h"

#include <algorithm>
#include <optional>

namespace toolbar {

namespace {

using P = Properties;
using E = Effect;

constexpr PropertyRow Rows[] = {
    {u"Appearance", &P::Appearance, E::Repaint},
    {u"BackColor", &P::BackColor, E::RepaintBackground},
    {u"RectBorderColor", &P::RectBorderColor, E::Repaint},
    {u"RectBorderColorAutoBlend", &P::RectBorderColorAutoBlend, E::Repaint},
    {u"BorderStyle", &P::BorderStyle, E::LayOut},
    {u"Enabled", &P::Enabled, E::Repaint},
    {u"Font", &P::Font, E::Repaint},
    {u"ForeColor", &P::ForeColor, E::Repaint},
    {u"ButtonsPerRow", &P::ButtonsPerRow, E::LayOut},
    {u"ButtonsPerRow_Chev", &P::ButtonsPerRow_Chev, E::LayOut},
    {u"ShowChevron", &P::ShowChevron, E::None},
    {u"ButtonsWidth", &P::ButtonsWidth, E::LayOut},
    {u"ButtonsHeight", &P::ButtonsHeight, E::LayOut},
    {u"ButtonsSeperatorWidth", &P::ButtonsSeperatorWidth, E::LayOut},
    {u"ShowSeperator", &P::ShowSeperator, E::Repaint},
    {u"Background", &P::Background, E::RepaintBackground},
    {u"HoverColor", &P::HoverColor, E::Repaint},
    {u"TooTipStyle", &P::TooTipStyle, E::None},
    {u"ToolTipBackCol", &P::ToolTipBackCol, E::None},
    {u"ToolTipForeCol", &P::ToolTipForeCol, E::None},
    {u"BackGradient", &P::BackGradient, E::RepaintBackground},
    {u"BackGradientCol", &P::BackGradientCol, E::RepaintBackground},
    {u"ButtonsMode", &P::ButtonsMode, E::LayOut},
    {u"ButtonsBackColor", &P::ButtonsBackColor, E::Repaint},
    {u"ButtonsGradientCol", &P::ButtonsGradientCol, E::Repaint},
    {u"ButtonsGradient", &P::ButtonsGradient, E::Repaint},
};

/// The properties that a look sets besides BackColor and BackGradient. Those without a value stay as they are.
struct ModeRow {
  qint16 BorderStyle;
  int ButtonsGradient;
  std::optional<quint32> HoverColor;
  std::optional<quint32> ButtonsBackColor;
  std::optional<quint32> ButtonsGradientCol;
};
constexpr quint32 MenuColor = drawing::colorValue(drawing::SystemColor::Menu);
constexpr ModeRow Modes[] = {
    {0, 0, {}, {}, {}},
    {0, 0, {}, {}, {}},
    {1, 0, {}, {}, {}},
    {1, 0, {}, {}, {}},
    {0, 0, 0xFF8080, {}, {}},
    {0, 3, 0x80C0FF, 0xE1F2F2, 0xFFFFFF},
    {1, 3, 0x800000, MenuColor, drawing::ButtonFaceColor},
};

}  // namespace

std::span<const PropertyRow> propertyRows() {
  return Rows;
}

const PropertyRow& rowOf(const Property& property) {
  return *std::find_if(std::begin(Rows), std::end(Rows),
                       [&property](const PropertyRow& row) { return row.property == property; });
}

void ApplyButtonsMode(Properties& properties, int mode) {
  if (mode < 0 || mode >= std::ssize(Modes)) return;
  const ModeRow& row = Modes[mode];
  properties.BackColor = drawing::ButtonFaceColor;
  properties.BackGradient = 0;
  properties.BorderStyle = row.BorderStyle;
  properties.ButtonsGradient = row.ButtonsGradient;
  properties.HoverColor = row.HoverColor.value_or(properties.HoverColor);
  properties.ButtonsBackColor = row.ButtonsBackColor.value_or(properties.ButtonsBackColor);
  properties.ButtonsGradientCol = row.ButtonsGradientCol.value_or(properties.ButtonsGradientCol);
}

}  // namespace toolbar
