#pragma once

#include "endurance/system_calls.h"

namespace system_calls {

/// What happens to a call.
enum class Outcome {
  Passes,
  Fails,
  NoRoom,  ///< it fails as the disk is full
  Halved,  ///< it moves half of its bytes
  Dies,    ///< the process ends in front of it, or in the middle of a write
};

/// Counts a call of that kind, and gives what happens to it.
Outcome outcomeOf(Kind kind);

/// Ends a process of armInChild that wasn't killed; elsewhere does nothing.
void endOfChild();

}  // namespace system_calls
