#pragma once

#include <QByteArrayView>
#include <QImage>

namespace drawing {

/// The picture in a JPEG file, as Format_ARGB32. Null when it claims more pixels than `largest`, is damaged, or lacks
/// data of any part: the library that Qt decodes with fills such a part up and calls it a warning, which Qt doesn't
/// pass on.
QImage decodeJpeg(QByteArrayView bytes, qint64 largest);

}  // namespace drawing
