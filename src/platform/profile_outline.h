#pragma once

#include <vector>

#include <QByteArray>
#include <QByteArrayView>

namespace platform {

// A key line and a section as they stand in an ini file, lines being counted from 1.
struct OutlineKey {
  QByteArray name;
  QByteArray value;  ///< as findProfileValue gives it
  int line = 0;
};
struct OutlineSection {
  QByteArray name;
  int line = 0;
  std::vector<OutlineKey> keys;
};

/// All sections with their keys in file order, doubles too.
std::vector<OutlineSection> profileOutline(QByteArrayView file);

}  // namespace platform
