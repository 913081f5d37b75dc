#pragma once

#include <QByteArrayView>
#include <QString>

#include "platform/file_result.h"

namespace platform {

/// The final target of a symbolic link, whether that exists or not; else the path itself. Native paths.
FileResult<QString> followLinks(QString native);

/// Where a symbolic link at the native path leads to, by what its file system keeps of it; empty if that is no such
/// link.
QString linkTarget(const QString& native, QByteArrayView kept);

}  // namespace platform
