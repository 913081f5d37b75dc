#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QRgb>

namespace sample {

/// A picture of up to 256 colours; `dots` holds width x height indexes into `colours`, row by row.
struct IndexedPicture {
  int width = 0, height = 0;
  std::vector<QRgb> colors;
  std::vector<unsigned char> dots;
  std::optional<int> transparent;
};

/// The picture as a GIF 89a file.
QByteArray encodeGif(const IndexedPicture& picture);

}  // namespace sample
