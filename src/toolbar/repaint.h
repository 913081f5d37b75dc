#pragma once

#include <vector>

#include "toolbar/button_surface.h"
#include "toolbar/model.h"

namespace toolbar {

/// What a surface shows.
struct Scene {
  const Model& buttons;
  const std::vector<int>& HiddenButtons;
  QSize innerSize;  ///< of the control
  bool isMain = true;
  bool ButtonHeld = false;
  bool UserMode = true;
};

/// Draws the whole surface; the background only unless `backgroundDrawn`, which is true then. Whether the pressed
/// chevron was drawn. A failure ends the drawing of its part in silence.
bool paint(ButtonSurface& surface, const Scene& scene, bool& backgroundDrawn);

}  // namespace toolbar
