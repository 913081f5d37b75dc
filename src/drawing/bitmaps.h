#pragma once

#include <QRgb>
#include <QtGlobal>

namespace drawing {

/// Bytes of a bitmap's row: its pixels, filled up to whole groups of four bytes.
constexpr qint64 bytesPerRow(qint64 width, qint64 bitsPerPixel) {
  return (width * bitsPerPixel + 31) / 32 * 4;
}

/// Whether a pixel counts as seen where there is no half: by half its alpha.
constexpr bool isSeen(QRgb pixel) {
  return qAlpha(pixel) >= 128;
}

}  // namespace drawing
