#pragma once

#include <vector>

#include "toolbar/button_surface.h"
#include "toolbar/model.h"

namespace toolbar {

/// What is drawn on a surface.
struct Scene {
  const Model& buttons;
  const std::vector<int>& HiddenButtons;
  QSize innerSize;  ///< the control's size
  bool isMain = true;
  bool ButtonHeld = false;
  bool UserMode = true;
};

/// Draws the whole surface. Draws the background only if it isn't drawn yet, then sets the flag. Returns whether the
/// chevron is pressed. A failure silently ends the part that is being drawn.
bool paint(ButtonSurface& surface, const Scene& scene, bool& backgroundDrawn);

}  // namespace toolbar
