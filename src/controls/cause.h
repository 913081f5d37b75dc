#pragma once

namespace controls {

/// What set off a Click: the user's own input, or a value that code wrote. Where the program asks whether a control is
/// the active one, this is what it asks for.
enum class Cause { Code, User };

}  // namespace controls
