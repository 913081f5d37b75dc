#pragma once

#include <vector>

#include <QByteArrayView>

namespace platform {

/// The names of an ini file's sections in file order, each once, by the rules of ini_reading.h. They are in its bytes.
std::vector<QByteArrayView> iniSectionNames(QByteArrayView file);

}  // namespace platform
