#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QString>

namespace drawing {

/// The picture in a file, as Format_ARGB32 (not premultiplied) with its own pixels: the decoder is chosen by content,
/// BMP, GIF (first frame), JPEG and PNG only; no turning by stored orientation, no colour space conversion. Null when
/// the file can't be read, is no picture of these, is or claims to be enormous, or decodes only in part.
QImage LoadPicture(const QString& path);

/// The same from bytes.
QImage decodePicture(QByteArrayView bytes);

}  // namespace drawing
