#include "progressbar/main_window_bar.h"

#include "platform/fonts.h"
#include "progressbar/stored_form.h"

namespace progressbar {

platform::PropertyBag MainWindowBar() {
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
      {u"TextFont", platform::ControlFont(QStringLiteral("Arial"), 11)},
      {u"PBSCustomeColor2", 0xC0C0C0U},
      {u"PBSCustomeColor1", 0x404040U},
  };
  platform::PropertyBag bag;
  StoreSize(bag, QSize(801, 20));
  for (const auto& [key, value] : stored) bag.WriteProperty(key.toString(), value, {});
  return bag;
}

}  // namespace progressbar
