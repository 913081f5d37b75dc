#pragma once

#include "progressbar/properties.h"

namespace progressbar {

/// What a progress bar's widget offers to assistive programs.
class AccessibleBarSource {
 public:
  virtual ~AccessibleBarSource() = default;
  virtual const Properties& state() const = 0;
};

/// Makes widgets with this interface visible to assistive programs as progress bars. Further calls do nothing.
void installAccessibility();

}  // namespace progressbar
