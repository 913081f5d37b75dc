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
  QImage pixels;    ///< Format_ARGB32; wholly opaque, or clear and black
  QImage mask;      ///< of an icon: white where it lets through what lies behind it, else black
  QByteArray file;  ///< the image file that it came from; empty when it came from pixels

  int Width() const { return pixels.width(); }
  int Height() const { return pixels.height(); }
};

/// Pictures are shared and never change; null for none.
using PictureReference = std::shared_ptr<const Picture>;

/// The picture of an image file: an icon file or a picture with transparent pixels gives an icon, any other a bitmap,
/// and what is neither an empty picture.
PictureReference pictureOfFile(const QByteArray& file);
PictureReference pictureOfImage(const QImage& image);
/// From a PictureReference, a QIcon, a QPixmap or a QImage; null for a value of another type and for empty ones.
PictureReference pictureOf(const QVariant& value);

/// The bytes of an image file that gives the picture back; empty for an empty picture.
QByteArray fileOf(const Picture& picture);

}  // namespace toolbar

Q_DECLARE_METATYPE(toolbar::PictureReference)
