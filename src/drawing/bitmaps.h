#pragma once

#include <QRgb>
#include <QtGlobal>

namespace drawing {

/// The length in bytes of a bitmap's row, which is padded to a multiple of four.
constexpr qint64 bytesPerRow(qint64 width, qint64 bitsPerPixel) {
  return (width * bitsPerPixel + 31) / 32 * 4;
}

/// Whether a pixel is visible in a format without partial transparency: at an alpha of 128 and more.
constexpr bool isSeen(QRgb pixel) {
  return qAlpha(pixel) >= 128;
}

}  // namespace drawing
