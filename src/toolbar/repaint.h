#pragma once

#include <vector>

#include "toolbar/model.h"
#include "toolbar/surface.h"

namespace toolbar {

/// What a surface shows.
struct Scene {
  const Model& buttons;
  const std::vector<int>& HiddenButtons;
  QSize InnerSize;  ///< of the control
  bool isMain = true;
  bool ButtonHeld = false;
  bool UserMode = true;
};

/// Draws the whole surface; the background only unless `backgroundDrawn`, which is true then. Whether the pressed
/// chevron was drawn. A failure ends the drawing of its part in silence.
bool paint(Surface& surface, const Scene& scene, bool& backgroundDrawn);

}  // namespace toolbar
