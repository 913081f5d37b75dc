#pragma once

#include <QByteArray>

namespace mainwindows {

/// The stored toolbar of the main window: four icon buttons (open, save, close, background colour) on a grey ramp,
/// 800 x 32 pixels, the first one enabled. The icons come from the program's assets.
QByteArray mainWindowToolBar();

}  // namespace mainwindows
