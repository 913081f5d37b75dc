#include "controls/assets.h"

#include <QFile>
#include <QPixmap>

#include "platform/pictures.h"

namespace controls {

QImage AssetPicture(const QString& name) {
  QFile file(QStringLiteral(":/assets/") + name);
  return file.open(QIODevice::ReadOnly) ? platform::DecodePicture(file.readAll()) : QImage();
}

QIcon AssetIcon(const QString& name) {
  return QIcon(QPixmap::fromImage(AssetPicture(name + QStringLiteral(".png"))));
}

}  // namespace controls
