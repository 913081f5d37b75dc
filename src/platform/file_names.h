#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Names and paths as they are on a disk, in UTF-8. A name that isn't UTF-8 becomes a text, too, and the same bytes
/// again: its bytes beyond ASCII are single surrogates (U+DC80 to U+DCFF), which no other text has.
namespace platform {

QByteArray encodedName(const QString& name);
QString decodedName(QByteArrayView bytes);

}  // namespace platform
