#pragma once

#include <QSize>

#include "platform/property_bag.h"

namespace progressbar {

class ProgressBar;

/// Writes every member from its stored value or its stored default, in the order of their keys, and the size when it is
/// stored. A value that can't be read is passed over. The defaults of Text and TextFont are the bar's name and font of
/// its place.
void ReadProperties(ProgressBar& bar, const platform::PropertyBag& bag);
/// Stores the members that differ from their stored defaults, in the same order, and the size.
void WriteProperties(const ProgressBar& bar, platform::PropertyBag& bag);

/// Stores the size in pixels, kept in hundredths of a millimetre at 96 pixels an inch.
void StoreSize(platform::PropertyBag& bag, const QSize& pixels);

}  // namespace progressbar
