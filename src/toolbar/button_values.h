#pragma once

#include <QVariant>

#include "toolbar/toolbar_button.h"

namespace toolbar {

/// The numbers of a button's fields.
enum PropertyID {
  ButtonTypeProperty = 0,
  CaptionProperty = 1,
  EnabledProperty = 2,
  IconProperty = 3,
  IconAlignmentProperty = 4,
  PressedProperty = 5,
  ToolTipTextProperty = 6,
  ToolTipIconProperty = 7,
};

/// Converts the value to the field's type and stores it. An unknown number stores nothing. An icon may be a
/// PictureReference, QIcon, QPixmap or QImage.
void SetValue(ToolbarButton& button, int propertyID, const QVariant& value);
/// The field's value; an icon is a PictureReference. Invalid for an unknown number.
QVariant getValue(const ToolbarButton& button, int propertyID);

}  // namespace toolbar
