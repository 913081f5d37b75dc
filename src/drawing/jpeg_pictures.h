#pragma once

#include <QByteArrayView>
#include <QImage>

namespace drawing {

/// Decodes a JPEG file into Format_ARGB32. Null if it has more pixels than `largest`, is damaged, or lacks data. Qt's
/// own decoder would fill in lacking data and hide the library's warning.
QImage decodeJpeg(QByteArrayView bytes, qint64 largest);

}  // namespace drawing
