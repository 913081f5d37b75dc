#pragma once

#include <optional>

#include <QByteArrayView>
#include <QImage>

namespace drawing {

/// The two bitmaps of an icon, of the same size.
struct IconBitmaps {
  QImage Color;  ///< Format_RGB32; black where the mask is
  QImage mask;   ///< Format_RGB32; white where the icon lets through what lies behind it, else black
};

/// The bitmaps of the first image in a .ico file: 1, 4, 8, 24 or 32 bits a pixel, uncompressed, at most 256 pixels a
/// side. None for anything else.
std::optional<IconBitmaps> readIcon(QByteArrayView file);

/// A .ico file of one image with at most 256 colours; a pixel is seen or not, by half its alpha. None for more colours
/// or for sides outside 1 to 256.
std::optional<QByteArray> writeIcon(const QImage& picture);

/// The bitmaps of a picture with alpha: a pixel is seen or not, by half its alpha.
IconBitmaps bitmapsOf(const QImage& picture);

}  // namespace drawing
