#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "propertybag/property_bag.h"

namespace progressbar {

class ProgressBar;

/// Sets all properties of the bar from a bag, or else to their stored defaults, and the size if it is stored. A value
/// of the wrong type is skipped. The default of Text is the bar's name, that of TextFont the ambient font.
void readProperties(ProgressBar& bar, const propertybag::PropertyBag& bag);
/// The same for stored bytes. Damaged bytes are treated as an empty bag, and the result is false.
bool readProperties(ProgressBar& bar, QByteArrayView bytes);

/// Stores the size, then the properties that differ from their stored defaults.
void writeProperties(const ProgressBar& bar, propertybag::PropertyBag& bag);
QByteArray writeProperties(const ProgressBar& bar);

}  // namespace progressbar
