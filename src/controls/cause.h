#pragma once

namespace controls {

/// What set off a Click: the user's own input, or a value that code wrote. "Is the active control" asks for this.
enum class Cause { Code, User };

}  // namespace controls
