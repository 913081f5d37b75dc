#include "toolbar/picture.h"

#include <QBuffer>
#include <QIcon>
#include <QPixmap>

#include "platform/icons.h"
#include "platform/pictures.h"

namespace toolbar {

namespace {

constexpr int IconSide = 16;

Picture pictureOf(const platform::IconBitmaps& bitmaps) {
  Picture picture{Picture::Bitmap, bitmaps.Color.convertToFormat(QImage::Format_ARGB32), {}, {}};
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      if ((bitmaps.Mask.pixel(x, y) & RGB_MASK) == 0) continue;
      picture.Type = Picture::Icon;
      picture.Pixels.setPixel(x, y, 0);
    }
  }
  if (picture.Type == Picture::Icon) picture.Mask = bitmaps.Mask;
  return picture;
}

PictureReference reference(const QImage& image) {
  return image.isNull() ? nullptr : PictureOfImage(image);
}

}  // namespace

PictureReference PictureOfImage(const QImage& image) {
  return std::make_shared<Picture>(image.isNull() ? Picture() : pictureOf(platform::BitmapsOf(image)));
}

PictureReference PictureOfFile(const QByteArray& file) {
  Picture picture;
  if (const auto icon = platform::ReadIcon(file)) {
    picture = pictureOf(*icon);
    picture.Type = Picture::Icon;
    picture.Mask = icon->Mask;
  } else {
    picture = *PictureOfImage(platform::DecodePicture(file));
  }
  picture.File = file;
  return std::make_shared<Picture>(picture);
}

PictureReference PictureOf(const QVariant& value) {
  if (value.typeId() == qMetaTypeId<PictureReference>()) return value.value<PictureReference>();
  if (value.typeId() == QMetaType::QImage) return reference(value.value<QImage>());
  if (value.typeId() == QMetaType::QPixmap) return reference(value.value<QPixmap>().toImage());
  if (value.typeId() == QMetaType::QIcon)
    return reference(value.value<QIcon>().pixmap(QSize(IconSide, IconSide), 1.0).toImage());
  return nullptr;
}

QByteArray FileOf(const Picture& picture) {
  if (!picture.File.isEmpty() || picture.Pixels.isNull()) return picture.File;
  if (picture.Type == Picture::Icon) {
    if (const auto icon = platform::WriteIcon(picture.Pixels)) return *icon;
  }
  QByteArray file;
  QBuffer buffer(&file);
  picture.Pixels.save(&buffer, picture.Type == Picture::Icon ? "PNG" : "BMP");
  return file;
}

}  // namespace toolbar
