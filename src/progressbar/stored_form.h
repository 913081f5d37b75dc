#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "platform/property_bag.h"

namespace progressbar {

class ProgressBar;

/// Writes every member from its stored value or its stored default, in the order of their keys, and the size when it is
/// stored. A value that can't be read is passed over. The defaults of Text and TextFont are the bar's name and font of
/// its place.
void ReadProperties(ProgressBar& bar, const platform::PropertyBag& bag);
/// The same from the stored bytes of a bar; damaged ones count as an empty bag and give false.
bool ReadProperties(ProgressBar& bar, QByteArrayView bytes);

/// Stores the size and the members that differ from their stored defaults, in the same order.
void WriteProperties(const ProgressBar& bar, platform::PropertyBag& bag);
QByteArray WriteProperties(const ProgressBar& bar);

}  // namespace progressbar
