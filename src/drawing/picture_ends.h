#pragma once

#include <QByteArrayView>

/// Check that a picture's file is complete. Qt's decoders fill in what a cut or damaged file lacks and report success.
/// These functions follow the structure of the file without decoding a pixel. The bytes have to begin with the mark of
/// their format.
namespace drawing {

/// A run-length coded picture that skips pixels counts as incomplete.
bool isWholeBmp(QByteArrayView bytes);
/// Checks up to the end of the first frame.
bool isWholeGif(QByteArrayView bytes);
bool isWholePng(QByteArrayView bytes);

}  // namespace drawing
