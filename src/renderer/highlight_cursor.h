#pragma once

#include "drawing/surface.h"
#include "platform/status_line.h"
#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"

namespace renderer {

/// The mark over the preview, in pixels of the surface: the shape HL and the timer that blinks it.
class CursorMark {
 public:
  virtual ~CursorMark() = default;
  virtual void SetLeft(double left) = 0;
  virtual void SetTop(double top) = 0;
  virtual void SetWidth(double width) = 0;
  virtual void SetHeight(double height) = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual void setBlinking(bool blinking) = 0;
};

/// Places the mark on the object that is selected in the tag list, from the state's CursorRect: a frame round an object
/// with a rectangle, an upright line at the anchor of a text, no mark for any other. The text is measured on the
/// surface, whose face and size change by that. A failure is reported and leaves the mark as far as it was set.
void DrawCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                CursorMark& mark, platform::StatusLine& status);

}  // namespace renderer
