#pragma once

#include <vector>

#include <QByteArrayView>

#include "platform/ini_text.h"

namespace platform {

// A section and a key line of an ini file. They refer to its text. Lines count from 1.
struct OutlineKey {
  QByteArrayView name;
  QByteArrayView value;  ///< as findIniValue gives it
  int line = 0;
};
struct OutlineSection {
  QByteArrayView name;
  int line = 0;
  std::vector<OutlineKey> keys;
};

/// All sections with all their keys in file order, duplicates included.
std::vector<OutlineSection> iniOutline(const IniText& file);

}  // namespace platform
