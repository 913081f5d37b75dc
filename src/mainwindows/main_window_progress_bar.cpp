#include "mainwindows/main_window_progress_bar.h"

#include <QFont>

#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"

namespace mainwindows {

namespace {

constexpr QSize BarSize(801, 20);

QFont captionFont() {
  constexpr double Points = 8.25;
  QFont font;
  font.setFamilies({QStringLiteral("Arial")});
  font.setPointSizeF(Points);
  return font;
}

}  // namespace

QByteArray mainWindowBar() {
  const struct {
    QStringView key;
    QVariant value;
  } stored[] = {
      {u"RoundedValue", 0},
      {u"Theme", 10},
      {u"TextStyle", 3},
      {u"Text", QStringLiteral("Percent")},
      {u"TextEffectColor", 0xFFFFFFU},
      {u"TextEffect", 5},
      {u"TextFont", captionFont()},
      {u"PBSCustomeColor2", 0xC0C0C0U},
      {u"PBSCustomeColor1", 0x404040U},
  };
  propertybag::PropertyBag bag;
  propertybag::storeSize(bag, BarSize);
  for (const auto& [key, value] : stored) bag.WriteProperty(key.toString(), value, {});
  return propertybag::storedBytes(bag);
}

}  // namespace mainwindows
