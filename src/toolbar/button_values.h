#pragma once

#include <QVariant>

#include "toolbar/toolbar_button.h"

namespace toolbar {

/// The fields of a button by number.
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

/// Converts the value to the field's type and stores it; another number stores nothing. An icon is a
/// PictureReference, a QIcon, a QPixmap or a QImage.
void SetValue(ToolbarButton& button, int propertyID, const QVariant& value);
/// The field's value (an icon as PictureReference), none for another number.
QVariant getValue(const ToolbarButton& button, int propertyID);

}  // namespace toolbar
