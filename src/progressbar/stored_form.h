#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "propertybag/property_bag.h"

namespace progressbar {

class ProgressBar;

/// Writes every member from its stored value or its stored default, in the order of their keys, and the size when it is
/// stored. A value that can't be read is passed over. The defaults of Text and TextFont are the bar's name and font of
/// its place.
void readProperties(ProgressBar& bar, const propertybag::PropertyBag& bag);
/// The same from the stored bytes of a bar; damaged ones count as an empty bag and give false.
bool readProperties(ProgressBar& bar, QByteArrayView bytes);

/// Stores the size and the members that differ from their stored defaults, in the same order.
void writeProperties(const ProgressBar& bar, propertybag::PropertyBag& bag);
QByteArray writeProperties(const ProgressBar& bar);

}  // namespace progressbar
