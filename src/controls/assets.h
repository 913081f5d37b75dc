#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// The pictures compiled into the program. The decoder is chosen by the file's ending: letting the toolkit guess would
/// load every image plug-in of the machine at the start.
namespace controls {

/// The picture of that file name ("start.jpg"); null without one.
QImage assetPicture(const QString& name);

/// The icon of that name, without ending.
QIcon assetIcon(const QString& name);

}  // namespace controls
