#pragma once

#include <QByteArray>

namespace mainwindows {

/// The stored bar of the main window: grey on light grey, 801 x 20 pixels, with a caption of its own.
QByteArray mainWindowBar();

}  // namespace mainwindows
