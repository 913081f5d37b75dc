#pragma once

namespace platform {

/// How a symbolic link at a file's name is handled.
enum class AtLink {
  Follow,   ///< the link's target is used: for the game's own files
  Replace,  ///< the link counts as missing, and a write replaces it: for names that this program makes
};

}  // namespace platform
