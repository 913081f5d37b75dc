#pragma once

#include <QString>

namespace mainwindows {

/// The user's own copy of the sample game, in the folder of the user's documents; made from the one that is installed
/// beside the program if it isn't there yet. Throws platform::Failure when there is none to be had.
QString ownSampleGame();

}  // namespace mainwindows
