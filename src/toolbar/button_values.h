#pragma once

#include <span>
#include <variant>

#include <QStringView>
#include <QVariant>

#include "toolbar/properties.h"
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

struct ButtonField {
  PropertyID id;
  std::variant<int ToolbarButton::*, bool ToolbarButton::*, QString ToolbarButton::*, PictureReference ToolbarButton::*>
      member;
  QStringView property;  ///< its name as a property of the toolbar, whose current button it belongs to
  QStringView stem;      ///< its name in the stored form; the button's number follows
  Effect onWrite;        ///< as a property of the toolbar
};

/// All fields, by PropertyID.
std::span<const ButtonField> buttonFields();

/// Converts the value to the field's type and stores it. An unknown number stores nothing. An icon may be a
/// PictureReference, QIcon, QPixmap or QImage.
void SetValue(ToolbarButton& button, int propertyID, const QVariant& value);
/// The field's value; an icon is a PictureReference. Invalid for an unknown number.
QVariant getValue(const ToolbarButton& button, int propertyID);

}  // namespace toolbar
