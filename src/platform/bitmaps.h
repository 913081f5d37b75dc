#pragma once

#include <QRgb>
#include <QtGlobal>

namespace platform {

/// Bytes of a bitmap's row: its pixels, filled up to whole groups of four bytes.
constexpr qint64 RowBytes(qint64 width, qint64 bitsPerPixel) {
  return (width * bitsPerPixel + 31) / 32 * 4;
}

/// Whether a pixel counts as seen where there is no half: by half its alpha.
constexpr bool IsSeen(QRgb pixel) {
  return qAlpha(pixel) >= 128;
}

}  // namespace platform
