#pragma once

#include <memory>

#include <QByteArray>
#include <QImage>
#include <QVariant>

namespace toolbar {

/// A picture of a button or of the background.
struct Picture {
  enum Kind { Empty = 0, Bitmap = 1, Icon = 3 };
  Kind Type = Empty;
  QImage pixels;    ///< Format_ARGB32; each pixel is opaque, or transparent black
  QImage mask;      ///< for an icon: white where it is transparent, else black
  QByteArray file;  ///< the image file that it was read from; empty if it was made from pixels

  int Width() const { return pixels.width(); }
  int Height() const { return pixels.height(); }
};

/// Pictures are shared and never change. Null stands for none.
using PictureReference = std::shared_ptr<const Picture>;

/// Reads an image file. An icon file or a picture with transparent pixels becomes an icon, any other picture a bitmap,
/// and any other file an empty picture.
PictureReference pictureOfFile(const QByteArray& file);
PictureReference pictureOfImage(const QImage& image);
/// From a PictureReference, QIcon, QPixmap or QImage. Null for an empty one and for any other type.
PictureReference pictureOf(const QVariant& value);

/// An image file from which the picture can be read again; empty for an empty picture.
QByteArray fileOf(const Picture& picture);

}  // namespace toolbar

Q_DECLARE_METATYPE(toolbar::PictureReference)
