#include "progressbar/stored_form.h"

#include <optional>
#include <type_traits>

#include "progressbar/progress_bar.h"
#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"

namespace progressbar {

namespace {

/// What the place of a bar gives to members that aren't stored.
struct Ambient {
  QString displayName;
  QFont font;
};

/// One member as it is stored.
struct Member {
  QStringView key;
  QVariant (*storedDefault)(const Ambient& ambient);
  QVariant (*read)(const ProgressBar& bar);
  /// Passes over a value that isn't of the member's type.
  void (*write)(ProgressBar& bar, const QVariant& value);
};

template <auto Get, auto setValue>
constexpr Member stored(QStringView key, QVariant (*storedDefault)(const Ambient&)) {
  using T = std::remove_cvref_t<std::invoke_result_t<decltype(Get), const ProgressBar&>>;
  return {key, storedDefault, [](const ProgressBar& bar) { return QVariant::fromValue((bar.*Get)()); },
          [](ProgressBar& bar, const QVariant& value) {
            if (const std::optional<T> written = propertybag::storedAs<T>(value)) (bar.*setValue)(*written);
          }};
}

template <auto Value>
QVariant fixed(const Ambient& /*ambient*/) {
  return QVariant::fromValue(Value);
}
QVariant Name(const Ambient& ambient) {
  return ambient.displayName;
}
QVariant Font(const Ambient& ambient) {
  return ambient.font;
}

constexpr quint32 Black = 0;
constexpr quint32 LightGrey = 0xC8C8C8;

using Bar = ProgressBar;
constexpr Member Members[] = {
    stored<&Bar::max, &Bar::SetMax>(u"Max", fixed<100>),
    stored<&Bar::min, &Bar::SetMin>(u"Min", fixed<0>),
    stored<&Bar::Value, &Bar::SetValue>(u"Value", fixed<50>),
    stored<&Bar::RoundedValue, &Bar::SetRoundedValue>(u"RoundedValue", fixed<5>),
    stored<&Bar::Enabled, &Bar::SetEnabled>(u"Enabled", fixed<true>),
    stored<&Bar::Theme, &Bar::SetTheme>(u"Theme", fixed<1>),
    stored<&Bar::TextStyle, &Bar::SetTextStyle>(u"TextStyle", fixed<1>),
    stored<&Bar::Orientations, &Bar::SetOrientations>(u"Orientations", fixed<1>),
    stored<&Bar::Text, &Bar::SetText>(u"Text", Name),
    stored<&Bar::TextEffectColor, &Bar::SetTextEffectColor>(u"TextEffectColor", fixed<LightGrey>),
    stored<&Bar::TextEffect, &Bar::SetTextEffect>(u"TextEffect", fixed<1>),
    stored<&Bar::TextAlignment, &Bar::SetTextAlignment>(u"TextAlignment", fixed<5>),
    stored<&Bar::TextFont, &Bar::SetTextFont>(u"TextFont", Font),
    stored<&Bar::TextForeColor, &Bar::SetTextForeColor>(u"TextForeColor", fixed<Black>),
    stored<&Bar::PBSCustomeColor2, &Bar::SetPBSCustomeColor2>(u"PBSCustomeColor2", fixed<Black>),
    stored<&Bar::PBSCustomeColor1, &Bar::SetPBSCustomeColor1>(u"PBSCustomeColor1", fixed<Black>),
};

}  // namespace

void readProperties(ProgressBar& bar, const propertybag::PropertyBag& bag) {
  const Ambient ambient{bar.objectName(), bar.ambientFont()};
  for (const Member& member : Members) {
    member.write(bar, bag.ReadProperty(member.key.toString(), member.storedDefault(ambient)));
  }
  if (const std::optional<QSize> size = propertybag::storedSize(bag)) bar.resize(*size);
}

bool readProperties(ProgressBar& bar, QByteArrayView bytes) {
  const std::optional<propertybag::PropertyBag> bag = propertybag::bagOfBytes(bytes);
  readProperties(bar, bag.value_or(propertybag::PropertyBag()));
  return bag.has_value();
}

void writeProperties(const ProgressBar& bar, propertybag::PropertyBag& bag) {
  const Ambient ambient{QString(), bar.ambientFont()};
  propertybag::storeSize(bag, bar.size());
  for (const Member& member : Members) {
    bag.WriteProperty(member.key.toString(), member.read(bar), member.storedDefault(ambient));
  }
}

QByteArray writeProperties(const ProgressBar& bar) {
  propertybag::PropertyBag bag;
  writeProperties(bar, bag);
  return propertybag::storedBytes(bag);
}

}  // namespace progressbar
