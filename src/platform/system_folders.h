#pragma once

#include <QStringList>

namespace platform {

/// The system's own folders for programs, as native paths: nobody's settings belong there.
QStringList systemFolders();

}  // namespace platform
