#pragma once

#include <optional>

#include <QByteArrayView>
#include <QImage>

namespace drawing {

/// The two bitmaps of an icon, of the same size.
struct IconBitmaps {
  QImage Color;  ///< Format_RGB32; black where the icon is transparent
  QImage mask;   ///< Format_RGB32; white where the icon is transparent, else black
};

/// Reads the first image of a .ico file. It has to be uncompressed, with 1, 4, 8, 24 or 32 bits per pixel and at most
/// 256 pixels per side. None for anything else.
std::optional<IconBitmaps> readIcon(QByteArrayView file);

/// Makes a .ico file of one image. A pixel becomes opaque or transparent, see isSeen. None for more than 256 colours or
/// for sides outside 1 to 256.
std::optional<QByteArray> writeIcon(const QImage& picture);

/// The bitmaps of a picture with alpha. A pixel becomes opaque or transparent, see isSeen.
IconBitmaps bitmapsOf(const QImage& picture);

}  // namespace drawing
