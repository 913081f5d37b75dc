#pragma once

#include "progressbar/properties.h"

namespace progressbar {

/// What assistive programs need of a progress bar's widget.
class AccessibleBarSource {
 public:
  virtual ~AccessibleBarSource() = default;
  virtual const Properties& state() const = 0;
};

/// Lets assistive programs see widgets that are such a source as progress bars, with range and value; once for the
/// program, further calls do nothing.
void installAccessibility();

}  // namespace progressbar
