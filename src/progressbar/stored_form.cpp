#include "progressbar/stored_form.h"

#include <optional>

#include "progressbar/progress_bar.h"
#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"

namespace progressbar {

namespace {

/// The stored defaults. Some differ from the values of a new bar.
Properties storedDefaults(const QString& name, const QFont& ambientFont) {
  Properties values;
  values.max = 100;
  values.Value = 50;
  values.RoundedValue = 5;
  values.Enabled = true;
  values.Theme = 1;
  values.TextStyle = 1;
  values.Orientations = 1;
  values.Text = name;
  values.TextEffectColor = 0xC8C8C8;
  values.TextEffect = 1;
  values.TextAlignment = 5;
  values.TextFont = ambientFont;
  return values;
}

}  // namespace

void readProperties(ProgressBar& bar, const propertybag::PropertyBag& bag) {
  const Properties defaults = storedDefaults(bar.objectName(), bar.ambientFont());
  for (const PropertyRow& row : PropertyRows) {
    const auto read = [&]<typename T>(T Properties::*property) {
      const QVariant value = bag.ReadProperty(row.key.toString(), QVariant::fromValue(defaults.*property));
      if (const std::optional<T> stored = propertybag::storedAs<T>(value)) bar.set(property, *stored);
    };
    std::visit(read, row.property);
  }
  if (const std::optional<QSize> size = propertybag::storedSize(bag)) bar.resize(*size);
}

bool readProperties(ProgressBar& bar, QByteArrayView bytes) {
  const std::optional<propertybag::PropertyBag> bag = propertybag::bagOfBytes(bytes);
  readProperties(bar, bag.value_or(propertybag::PropertyBag()));
  return bag.has_value();
}

void writeProperties(const ProgressBar& bar, propertybag::PropertyBag& bag) {
  const Properties defaults = storedDefaults(QString(), bar.ambientFont());
  propertybag::storeSize(bag, bar.size());
  for (const PropertyRow& row : PropertyRows) {
    const auto write = [&](const auto property) {
      bag.WriteProperty(row.key.toString(), QVariant::fromValue(bar.state().*property),
                        QVariant::fromValue(defaults.*property));
    };
    std::visit(write, row.property);
  }
}

QByteArray writeProperties(const ProgressBar& bar) {
  propertybag::PropertyBag bag;
  writeProperties(bar, bag);
  return propertybag::storedBytes(bag);
}

}  // namespace progressbar
