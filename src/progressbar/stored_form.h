#pragma once

#include <optional>

#include <QFont>
#include <QSize>
#include <QString>

#include "platform/property_bag.h"

namespace progressbar {

class ProgressBar;

/// What the place of a control gives to members that aren't stored.
struct Ambient {
  QString DisplayName;
  QFont Font;
};

/// Writes all members of the bar from the bag, in the order of their keys; a value of a wrong type is passed over.
void ReadStoredForm(ProgressBar& bar, const platform::PropertyBag& bag, const Ambient& ambient);
/// Stores the members in the same order.
void WriteStoredForm(const ProgressBar& bar, platform::PropertyBag& bag, const Ambient& ambient);

/// The size in pixels, kept in hundredths of a millimetre at 96 pixels an inch; none when it isn't stored.
std::optional<QSize> StoredSize(const platform::PropertyBag& bag);
void StoreSize(platform::PropertyBag& bag, const QSize& pixels);

}  // namespace progressbar
