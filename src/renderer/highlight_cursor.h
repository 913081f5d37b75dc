#pragma once

#include "drawing/surface.h"
#include "platform/status_line.h"
#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"

namespace renderer {

/// The mark over the preview: the shape HL, and the timer that makes it blink. Measures are in pixels of the surface.
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

/// Places the mark on the selected object by the state's CursorRect: a frame around an object with a rectangle, a
/// vertical line at the anchor of a text, no mark for any other. Measuring a text sets the surface's font. A failure is
/// reported; what was set of the mark before stays.
void DrawCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                CursorMark& mark, platform::StatusLine& status);

}  // namespace renderer
