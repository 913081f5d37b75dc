#pragma once

#include <QByteArray>

#include "mainwindows/command.h"

namespace mainwindows {

/// The stored toolbar of the main window: an icon button for each command that has one, on a grey ramp, 800 x 32
/// pixels, the first one enabled. The icons come from the program's assets.
QByteArray mainWindowToolBar(CommandRows commands);

}  // namespace mainwindows
