#pragma once

#include <vector>

#include <QByteArrayView>

#include "platform/ini_text.h"

namespace platform {

/// A key line of an ini file. It refers to its text. Lines count from 1.
struct OutlineKey {
  QByteArrayView name;
  QByteArrayView value;  ///< as findIniValue gives it
  int line = 0;
};
/// A section with its keys, the same way.
struct OutlineSection {
  QByteArrayView name;
  int line = 0;
  std::vector<OutlineKey> keys;
};

/// All sections with all their keys in file order, duplicates included.
std::vector<OutlineSection> iniOutline(const IniText& file);

}  // namespace platform
