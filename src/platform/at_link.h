#pragma once

namespace platform {

/// What becomes of a symbolic link that stands at a file's name.
enum class AtLink {
  Follow,   ///< the file behind it is meant: the game's own names
  Replace,  ///< it counts as nothing, and a file that is written takes its place: names that this program makes
};

}  // namespace platform
