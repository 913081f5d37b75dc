#pragma once

#include <vector>

#include "drawing/surface.h"
#include "platform/status_line.h"
#include "renderer/trial_values.h"
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

/// Step name of the report of a mark that can't be placed.
inline constexpr QStringView CursorStep = u"Error while drawing highlighting cursor";

/// Places the mark on the selected object by the state's CursorRect: a frame around an object with a rectangle, a
/// vertical line at the anchor of a text, no mark for any other. Measuring a text sets the surface's font. Throws
/// platform::Failure if the mark can't be placed: "W is -1"; what was set of it before stays. The place of a text of a
/// button depends on the button's, which may be among the values on trial.
void placeCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                 CursorMark& mark, const std::vector<TrialValues>& trial = {});

/// The same, but reports a failure.
void DrawCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                CursorMark& mark, platform::StatusLine& status, const std::vector<TrialValues>& trial = {});

}  // namespace renderer
