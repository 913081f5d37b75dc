#include "toolbar/stored_form.h"

#include <algorithm>

#include "propertybag/stored_values.h"
#include "toolbar/button_values.h"

namespace toolbar {

namespace {

using propertybag::PropertyBag;
using propertybag::StoredPicture;

constexpr QStringView CountKey = u"Button_Count";
constexpr QStringView IndexKey = u"Button_Index";

/// The keys in the order in which they are stored. CountKey and IndexKey are no properties.
constexpr QStringView Keys[] = {
    u"Appearance",
    u"BackColor",
    u"BorderStyle",
    u"Enabled",
    u"Font",
    u"ForeColor",
    CountKey,
    IndexKey,
    u"BackGround",
    u"ButtonsWidth",
    u"ButtonsHeight",
    u"ButtonsPerRow",
    u"HoverColor",
    u"TooTipStyle",
    u"ToolTipBackCol",
    u"ToolTipForeCol",
    u"BackGradient",
    u"BackGradientCol",
    u"ButtonsMode",
    u"ButtonsSeperatorWidth",
    u"ShowSeperator",
    u"ButtonsBackColor",
    u"ButtonsGradientCol",
    u"ButtonsGradient",
    u"ButtonsPerRow_Chev",
    u"ShowChevron",
    u"RectBorderColor",
    u"RectBorderColorAutoBlend",
};

/// A button's fields in the order in which they are stored.
constexpr PropertyID StoredFields[] = {
    CaptionProperty, IconProperty,    ToolTipTextProperty,   ToolTipIconProperty,
    EnabledProperty, PressedProperty, IconAlignmentProperty, ButtonTypeProperty,
};

/// The stored defaults are the values of a new toolbar, with these exceptions.
Properties storedDefaults(const QFont& ambientFont) {
  Properties values;
  values.Font = ambientFont;
  values.TooTipStyle = 2;
  values.Background = nullptr;
  return values;
}
ToolbarButton storedButton() {
  ToolbarButton button;
  button.ToolTipIcon = 0;
  return button;
}

QVariant toStored(const auto& value) {
  return QVariant::fromValue(value);
}
QVariant toStored(const PictureReference& picture) {
  const QByteArray file = picture ? fileOf(*picture) : QByteArray();
  return file.isEmpty() ? QVariant() : QVariant::fromValue(StoredPicture{file});
}

/// Takes over the value. False if it isn't of the member's type.
template <typename T>
bool fromStored(const QVariant& value, T& member) {
  const std::optional<T> stored = propertybag::storedAs<T>(value);
  member = stored.value_or(member);
  return stored.has_value();
}
bool fromStored(const QVariant& value, PictureReference& member) {
  const auto stored = propertybag::storedAs<StoredPicture>(value);
  if (stored) member = pictureOfFile(stored->file);
  return stored.has_value();
}

/// Reads a key, if the bag has it. False if its value isn't of the member's type.
bool read(const PropertyBag& bag, const QString& key, auto& member) {
  return !bag.contains(key) || fromStored(bag.ReadProperty(key, {}), member);
}

void write(PropertyBag& bag, const QString& key, const auto& value, const auto& defaultValue) {
  bag.WriteProperty(key, toStored(value), toStored(defaultValue));
}

const Property& propertyOf(QStringView key) {
  const auto rows = propertyRows();
  return std::find_if(rows.begin(), rows.end(),
                      [key](const PropertyRow& row) { return key.compare(row.name, Qt::CaseInsensitive) == 0; })
      ->property;
}

bool readButton(const PropertyBag& bag, const QString& number, ToolbarButton& button) {
  return std::all_of(std::begin(StoredFields), std::end(StoredFields), [&](PropertyID id) {
    const ButtonField& field = buttonFields()[id];
    return std::visit([&](const auto member) { return read(bag, field.stem.toString() + number, button.*member); },
                      field.member);
  });
}

bool readControl(const PropertyBag& bag, Properties& values, int& count) {
  return std::all_of(std::begin(Keys), std::end(Keys), [&](QStringView key) {
    if (key == IndexKey) return true;
    if (key == CountKey) return read(bag, key.toString(), count);
    return std::visit([&](const auto member) { return read(bag, key.toString(), values.*member); }, propertyOf(key));
  });
}

}  // namespace

std::optional<StoredToolBar> readStoredForm(const PropertyBag& bag, const QFont& ambientFont) {
  StoredToolBar toolBar{storedDefaults(ambientFont), {}};
  int count = 1;
  if (!readControl(bag, toolBar.values, count) || count < 1 || count > MostButtons) return std::nullopt;
  toolBar.buttons.resize(count, storedButton());
  for (int number = 1; number <= count; ++number) {
    if (!readButton(bag, QString::number(number), toolBar.buttons[number - 1])) return std::nullopt;
  }
  return toolBar;
}

void writeStoredForm(PropertyBag& bag, const StoredToolBar& toolBar, const QFont& ambientFont) {
  const Properties defaults = storedDefaults(ambientFont);
  for (const QStringView key : Keys) {
    if (key == CountKey) {
      write(bag, key.toString(), static_cast<int>(toolBar.buttons.size()), 1);
    } else if (key == IndexKey) {
      write(bag, key.toString(), toolBar.Button_Index, 1);
    } else {
      std::visit([&](const auto member) { write(bag, key.toString(), toolBar.values.*member, defaults.*member); },
                 propertyOf(key));
    }
  }
  const ToolbarButton plain = storedButton();
  int number = 0;
  for (const ToolbarButton& button : toolBar.buttons) {
    const QString suffix = QString::number(++number);
    for (const PropertyID id : StoredFields) {
      const ButtonField& field = buttonFields()[id];
      std::visit([&](const auto member) { write(bag, field.stem.toString() + suffix, button.*member, plain.*member); },
                 field.member);
    }
  }
}

}  // namespace toolbar
