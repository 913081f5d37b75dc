#include "toolbar/button_values.h"

namespace toolbar {

void SetValue(ToolbarButton& button, int propertyID, const QVariant& value) {
  switch (propertyID) {
    case ButtonTypeProperty:
      button.ButtonType = value.toInt();
      break;
    case CaptionProperty:
      button.Caption = value.toString();
      break;
    case EnabledProperty:
      button.Enabled = value.toBool();
      break;
    case IconProperty:
      button.Icon = pictureOf(value);
      break;
    case IconAlignmentProperty:
      button.IconAlignment = value.toInt();
      break;
    case PressedProperty:
      button.Pressed = value.toBool();
      break;
    case ToolTipTextProperty:
      button.ToolTipText = value.toString();
      break;
    case ToolTipIconProperty:
      button.ToolTipIcon = value.toInt();
      break;
    default:
      break;
  }
}

QVariant getValue(const ToolbarButton& button, int propertyID) {
  switch (propertyID) {
    case ButtonTypeProperty:
      return button.ButtonType;
    case CaptionProperty:
      return button.Caption;
    case EnabledProperty:
      return button.Enabled;
    case IconProperty:
      return QVariant::fromValue(button.Icon);
    case IconAlignmentProperty:
      return button.IconAlignment;
    case PressedProperty:
      return button.Pressed;
    case ToolTipTextProperty:
      return button.ToolTipText;
    case ToolTipIconProperty:
      return button.ToolTipIcon;
    default:
      return {};
  }
}

}  // namespace toolbar
