#pragma once

#include <QByteArrayView>

/// Whether a picture's file holds all of its pixels. The decoders fill up what a cut or damaged file lacks and call it
/// a success; here the structure of the file is walked, and no pixel decoded. The bytes begin with the mark of their
/// kind.
namespace drawing {

/// A run-length coded one that leaves pixels out counts as cut.
bool isWholeBmp(QByteArrayView bytes);
/// To the end of the first frame.
bool isWholeGif(QByteArrayView bytes);
bool isWholePng(QByteArrayView bytes);

}  // namespace drawing
