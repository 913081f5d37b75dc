#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QString>

namespace drawing {

/// Reads a BMP, GIF (first frame), JPEG or PNG file into Format_ARGB32. The format is told from the contents. A stored
/// orientation or colour space is ignored. Null if the file can't be read, has another format, is larger than 256 MB on
/// disk or in memory, or is incomplete.
QImage LoadPicture(const QString& path);

/// The same for the file's bytes.
QImage decodePicture(QByteArrayView bytes);

}  // namespace drawing
