#include "progressbar/stored_form.h"

#include <optional>
#include <type_traits>

#include "platform/property_bag_bytes.h"
#include "platform/stored_values.h"
#include "progressbar/progress_bar.h"

namespace progressbar {

namespace {

/// What the place of a bar gives to members that aren't stored.
struct Ambient {
  QString DisplayName;
  QFont Font;
};

/// One member as it is stored.
struct Member {
  QStringView key;
  QVariant (*storedDefault)(const Ambient& ambient);
  QVariant (*read)(const ProgressBar& bar);
  /// Passes over a value that isn't of the member's type.
  void (*write)(ProgressBar& bar, const QVariant& value);
};

template <auto Get, auto Set>
constexpr Member Stored(QStringView key, QVariant (*storedDefault)(const Ambient&)) {
  using T = std::remove_cvref_t<std::invoke_result_t<decltype(Get), const ProgressBar&>>;
  return {key, storedDefault, [](const ProgressBar& bar) { return QVariant::fromValue((bar.*Get)()); },
          [](ProgressBar& bar, const QVariant& value) {
            if (const std::optional<T> written = platform::StoredAs<T>(value)) (bar.*Set)(*written);
          }};
}

template <auto Value>
QVariant Fixed(const Ambient& /*ambient*/) {
  return QVariant::fromValue(Value);
}
QVariant Name(const Ambient& ambient) {
  return ambient.DisplayName;
}
QVariant Font(const Ambient& ambient) {
  return ambient.Font;
}

constexpr quint32 Black = 0;
constexpr quint32 LightGrey = 0xC8C8C8;

using Bar = ProgressBar;
constexpr Member Members[] = {
    Stored<&Bar::max, &Bar::SetMax>(u"Max", Fixed<100>),
    Stored<&Bar::min, &Bar::SetMin>(u"Min", Fixed<0>),
    Stored<&Bar::Value, &Bar::SetValue>(u"Value", Fixed<50>),
    Stored<&Bar::RoundedValue, &Bar::SetRoundedValue>(u"RoundedValue", Fixed<5>),
    Stored<&Bar::Enabled, &Bar::SetEnabled>(u"Enabled", Fixed<true>),
    Stored<&Bar::Theme, &Bar::SetTheme>(u"Theme", Fixed<1>),
    Stored<&Bar::TextStyle, &Bar::SetTextStyle>(u"TextStyle", Fixed<1>),
    Stored<&Bar::Orientations, &Bar::SetOrientations>(u"Orientations", Fixed<1>),
    Stored<&Bar::Text, &Bar::SetText>(u"Text", Name),
    Stored<&Bar::TextEffectColor, &Bar::SetTextEffectColor>(u"TextEffectColor", Fixed<LightGrey>),
    Stored<&Bar::TextEffect, &Bar::SetTextEffect>(u"TextEffect", Fixed<1>),
    Stored<&Bar::TextAlignment, &Bar::SetTextAlignment>(u"TextAlignment", Fixed<5>),
    Stored<&Bar::TextFont, &Bar::SetTextFont>(u"TextFont", Font),
    Stored<&Bar::TextForeColor, &Bar::SetTextForeColor>(u"TextForeColor", Fixed<Black>),
    Stored<&Bar::PBSCustomeColor2, &Bar::SetPBSCustomeColor2>(u"PBSCustomeColor2", Fixed<Black>),
    Stored<&Bar::PBSCustomeColor1, &Bar::SetPBSCustomeColor1>(u"PBSCustomeColor1", Fixed<Black>),
};

}  // namespace

void ReadProperties(ProgressBar& bar, const platform::PropertyBag& bag) {
  const Ambient ambient{bar.objectName(), bar.AmbientFont()};
  for (const Member& member : Members) {
    member.write(bar, bag.ReadProperty(member.key.toString(), member.storedDefault(ambient)));
  }
  if (const std::optional<QSize> size = platform::StoredSize(bag)) bar.resize(*size);
}

bool ReadProperties(ProgressBar& bar, QByteArrayView bytes) {
  const std::optional<platform::PropertyBag> bag = platform::BagOfBytes(bytes);
  ReadProperties(bar, bag.value_or(platform::PropertyBag()));
  return bag.has_value();
}

void WriteProperties(const ProgressBar& bar, platform::PropertyBag& bag) {
  const Ambient ambient{QString(), bar.AmbientFont()};
  platform::StoreSize(bag, bar.size());
  for (const Member& member : Members) {
    bag.WriteProperty(member.key.toString(), member.read(bar), member.storedDefault(ambient));
  }
}

QByteArray WriteProperties(const ProgressBar& bar) {
  platform::PropertyBag bag;
  WriteProperties(bar, bag);
  return platform::StoredBytes(bag);
}

}  // namespace progressbar
