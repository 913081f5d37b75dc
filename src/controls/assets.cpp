#include "controls/assets.h"

#include <QFile>
#include <QPixmap>

#include "drawing/pictures.h"

namespace controls {

QImage assetPicture(const QString& name) {
  QFile file(QStringLiteral(":/assets/") + name);
  return file.open(QIODevice::ReadOnly) ? drawing::decodePicture(file.readAll()) : QImage();
}

QIcon assetIcon(const QString& name) {
  return QIcon(QPixmap::fromImage(assetPicture(name + QStringLiteral(".png"))));
}

}  // namespace controls
