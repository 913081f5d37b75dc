#include "toolbar/button_values.h"

#include <array>

#include "platform/row_order.h"

namespace toolbar {

namespace {

using Button = ToolbarButton;

constexpr auto Fields = std::to_array<ButtonField>({
    {ButtonTypeProperty, &Button::ButtonType, u"Button_Type", u"Button_Type", Effect::LayOut},
    {CaptionProperty, &Button::Caption, u"ButtonCaption", u"ButtonCaption", Effect::Repaint},
    {EnabledProperty, &Button::Enabled, u"ButtonEnabled", u"ButtonEnabled", Effect::Repaint},
    {IconProperty, &Button::Icon, u"ButtonIcon", u"ButtonIcon", Effect::Repaint},
    {IconAlignmentProperty, &Button::IconAlignment, u"ButtonIconAllignment", u"ButtonIconAllignment", Effect::Repaint},
    {PressedProperty, &Button::Pressed, u"ButtonPressed", u"ButtonPressed", Effect::Repaint},
    {ToolTipTextProperty, &Button::ToolTipText, u"ButtonToolTip", u"ButtonToolTipText", Effect::None},
    {ToolTipIconProperty, &Button::ToolTipIcon, u"ButtonToolTipIcon", u"ButtonToolTipIcon", Effect::None},
});
static_assert(platform::inOrder(Fields, &ButtonField::id, ToolTipIconProperty));

/// The row of a field; null for an unknown number.
const ButtonField* fieldOf(int propertyID) {
  const bool known = propertyID >= 0 && propertyID < std::ssize(Fields);
  return known ? &Fields[propertyID] : nullptr;
}

void assign(int& member, const QVariant& value) {
  member = value.toInt();
}
void assign(bool& member, const QVariant& value) {
  member = value.toBool();
}
void assign(QString& member, const QVariant& value) {
  member = value.toString();
}
void assign(PictureReference& member, const QVariant& value) {
  member = pictureOf(value);
}

}  // namespace

std::span<const ButtonField> buttonFields() {
  return Fields;
}

void SetValue(ToolbarButton& button, int propertyID, const QVariant& value) {
  const ButtonField* const field = fieldOf(propertyID);
  if (field != nullptr) std::visit([&](const auto member) { assign(button.*member, value); }, field->member);
}

QVariant getValue(const ToolbarButton& button, int propertyID) {
  const ButtonField* const field = fieldOf(propertyID);
  if (field == nullptr) return {};
  return std::visit([&](const auto member) { return QVariant::fromValue(button.*member); }, field->member);
}

}  // namespace toolbar
