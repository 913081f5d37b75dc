#include "toolbar/picture.h"

#include <QBuffer>
#include <QIcon>
#include <QPixmap>

#include "drawing/icons.h"
#include "drawing/pictures.h"

namespace toolbar {

namespace {

constexpr int IconSide = 16;

Picture pictureOf(const drawing::IconBitmaps& bitmaps) {
  Picture picture{Picture::Bitmap, bitmaps.Color.convertToFormat(QImage::Format_ARGB32), {}, {}};
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      if ((bitmaps.mask.pixel(x, y) & RGB_MASK) == 0) continue;
      picture.Type = Picture::Icon;
      picture.pixels.setPixel(x, y, 0);
    }
  }
  if (picture.Type == Picture::Icon) picture.mask = bitmaps.mask;
  return picture;
}

PictureReference reference(const QImage& image) {
  return image.isNull() ? nullptr : pictureOfImage(image);
}

}  // namespace

PictureReference pictureOfImage(const QImage& image) {
  return std::make_shared<Picture>(image.isNull() ? Picture() : pictureOf(drawing::bitmapsOf(image)));
}

PictureReference pictureOfFile(const QByteArray& file) {
  Picture picture;
  if (const auto icon = drawing::readIcon(file)) {
    picture = pictureOf(*icon);
    picture.Type = Picture::Icon;
    picture.mask = icon->mask;
  } else {
    picture = *pictureOfImage(drawing::decodePicture(file));
  }
  picture.file = file;
  return std::make_shared<Picture>(picture);
}

PictureReference pictureOf(const QVariant& value) {
  if (value.typeId() == qMetaTypeId<PictureReference>()) return value.value<PictureReference>();
  if (value.typeId() == QMetaType::QImage) return reference(value.value<QImage>());
  if (value.typeId() == QMetaType::QPixmap) return reference(value.value<QPixmap>().toImage());
  if (value.typeId() == QMetaType::QIcon)
    return reference(value.value<QIcon>().pixmap(QSize(IconSide, IconSide), 1.0).toImage());
  return nullptr;
}

QByteArray fileOf(const Picture& picture) {
  if (!picture.file.isEmpty() || picture.pixels.isNull()) return picture.file;
  if (picture.Type == Picture::Icon) {
    if (const auto icon = drawing::writeIcon(picture.pixels)) return *icon;
  }
  QByteArray file;
  QBuffer buffer(&file);
  picture.pixels.save(&buffer, picture.Type == Picture::Icon ? "PNG" : "BMP");
  return file;
}

}  // namespace toolbar
