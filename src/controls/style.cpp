#include "controls/style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include "drawing/system_colours.h"

namespace controls {

namespace {

constexpr int ArrowWidth = 16;
constexpr int TitleIndent = 8;
constexpr int TitleMargin = 2;
using drawing::SystemColor;

constexpr SystemColor InactiveSelection = SystemColor::ButtonFace;
constexpr SystemColor InactiveSelectionText = SystemColor::ButtonText;

/// The system colour of each part of a control, also of disabled ones.
constexpr struct {
  QPalette::ColorRole role;
  SystemColor color;
  SystemColor disabled;
} Roles[] = {
    {QPalette::Window, SystemColor::ButtonFace, SystemColor::ButtonFace},
    {QPalette::WindowText, SystemColor::ButtonText, SystemColor::GreyText},
    {QPalette::Base, SystemColor::Window, SystemColor::ButtonFace},
    {QPalette::AlternateBase, SystemColor::Window, SystemColor::ButtonFace},
    {QPalette::Text, SystemColor::WindowText, SystemColor::GreyText},
    {QPalette::PlaceholderText, SystemColor::GreyText, SystemColor::GreyText},
    {QPalette::Button, SystemColor::ButtonFace, SystemColor::ButtonFace},
    {QPalette::ButtonText, SystemColor::ButtonText, SystemColor::GreyText},
    {QPalette::BrightText, SystemColor::HighlightText, SystemColor::HighlightText},
    {QPalette::Light, SystemColor::ButtonHighlight, SystemColor::ButtonHighlight},
    {QPalette::Midlight, SystemColor::Light, SystemColor::Light},
    {QPalette::Mid, SystemColor::ButtonShadow, SystemColor::ButtonShadow},
    {QPalette::Dark, SystemColor::ButtonShadow, SystemColor::ButtonShadow},
    {QPalette::Shadow, SystemColor::DarkShadow, SystemColor::DarkShadow},
    {QPalette::Highlight, SystemColor::Highlight, SystemColor::ButtonShadow},
    {QPalette::HighlightedText, SystemColor::HighlightText, SystemColor::HighlightText},
    {QPalette::Link, SystemColor::Highlight, SystemColor::GreyText},
    {QPalette::LinkVisited, SystemColor::Highlight, SystemColor::GreyText},
    {QPalette::ToolTipBase, SystemColor::Tip, SystemColor::Tip},
    {QPalette::ToolTipText, SystemColor::TipText, SystemColor::TipText},
};

/// A frame with its title on the upper line.
void drawGroupBox(const QStyleOptionGroupBox& box, QPainter& painter, const QStyle& style) {
  const QSize text = box.fontMetrics.size(Qt::TextShowMnemonic, box.text);
  const QRect title(box.rect.left() + TitleIndent, box.rect.top(), text.width() + 2 * TitleMargin, text.height());
  painter.save();
  if (!box.text.isEmpty()) painter.setClipRegion(QRegion(box.rect) - title);
  painter.setPen(box.palette.color(QPalette::Light));
  const QRect frame = box.rect.adjusted(0, text.height() / 2, -2, -2);
  painter.drawRect(frame.translated(1, 1));
  painter.setPen(box.palette.color(QPalette::Dark));
  painter.drawRect(frame);
  painter.restore();
  const bool enabled = box.state.testFlag(QStyle::State_Enabled);
  style.drawItemText(&painter, title, Qt::AlignCenter | Qt::TextShowMnemonic, box.palette, enabled, box.text,
                     QPalette::WindowText);
}

/// The border of a list, as four filled rectangles. A line's lower side would be hidden by the rows at a fractional
/// scale.
void drawListFrame(const QStyleOption& list, QPainter& painter) {
  constexpr int Darker = 140;  // per cent
  constexpr int Lighter = 108;
  const QColor color = list.palette.color(QPalette::Window).darker(Darker).lighter(Lighter);
  const QRect& box = list.rect;
  for (const QRect& side :
       {QRect(box.left(), box.top(), box.width(), 1), QRect(box.left(), box.bottom(), box.width(), 1),
        QRect(box.left(), box.top(), 1, box.height()), QRect(box.right(), box.top(), 1, box.height())}) {
    painter.fillRect(side, color);
  }
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

QPalette Style::standardPalette() const {
  QPalette palette;
  for (const auto& [role, color, disabled] : Roles) {
    palette.setColor(QPalette::Active, role, drawing::systemColor(color));
    palette.setColor(QPalette::Inactive, role, drawing::systemColor(color));
    palette.setColor(QPalette::Disabled, role, drawing::systemColor(disabled));
  }
  // A selection without the keyboard is grey.
  palette.setColor(QPalette::Inactive, QPalette::Highlight, drawing::systemColor(InactiveSelection));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, drawing::systemColor(InactiveSelectionText));
  return palette;
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* result) const {
  switch (hint) {
    case SH_Menu_AllowActiveAndDisabled:  // an entry may only tell something
      return 1;
    case SH_ComboBox_Popup:  // off: the list drops down below the box and has a limited height
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ItemView_ActivateItemOnSingleClick:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, result);
  }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
  const QRect box = option->rect;
  if (control == CC_ComboBox && part == SC_ComboBoxArrow) return box.adjusted(box.width() - ArrowWidth, 0, -2, 0);
  if (control == CC_ComboBox && part == SC_ComboBoxEditField) return box.adjusted(3, 1, -ArrowWidth, -1);
  return QProxyStyle::subControlRect(control, option, part, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  if (element == PE_Frame && qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
    drawListFrame(*option, *painter);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
  const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
  if (control == CC_GroupBox && box != nullptr) {
    drawGroupBox(*box, *painter, *this);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

}  // namespace controls
