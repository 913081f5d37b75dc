#pragma once

#include <vector>

#include <QByteArray>
#include <QByteArrayView>

namespace platform {

// A section and a key line of an ini file. Lines count from 1.
struct OutlineKey {
  QByteArray name;
  QByteArray value;  ///< as findIniValue gives it
  int line = 0;
};
struct OutlineSection {
  QByteArray name;
  int line = 0;
  std::vector<OutlineKey> keys;
};

/// All sections with all their keys in file order, duplicates included.
std::vector<OutlineSection> iniOutline(QByteArrayView file);

}  // namespace platform
