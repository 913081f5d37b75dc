#include <cmath>
#include <stdexcept>

#include "toolbar/checked_numbers.h"
#include "toolbar/control.h"
#include "toolbar/tool_bar_events.h"

namespace toolbar {

namespace {

constexpr int TicksToTip = 5;
constexpr int RectangularTip = 1;

}  // namespace

bool Control::canHover(int number, float x) const {
  const int width = model_.values().ButtonsWidth;
  if (width == 0) throw std::domain_error("buttons without a width");
  if (std::floor(static_cast<double>(x) / width) >= model_.values().ButtonsPerRow) return false;
  if (number < 1 || number > model_.Button_Count()) return false;
  const ToolbarButton& button = model_.Button(number);
  if (!button.Enabled || button.ButtonType == 1) return false;
  return picDraw_ == SurfaceName::Chevron || !model_.placeOf(number).InChevron;
}

/// The button that the pointer is over, 0 for the chevron, -1 for nothing. None if Button_Index has to stay as it is.
std::optional<int> Control::pointedAt(const MouseArguments& arguments) {
  const int x = nearestInt(arguments.X);
  const int y = nearestInt(arguments.Y);
  int index = -1;
  if (arguments.Button == MouseArguments::FromPopup) {
    picDraw_ = SurfaceName::Chevron;
    const int place = HitTest(model_, x, y, true);
    if (place < 1 || place > std::ssize(layout_.HiddenButtons)) return std::nullopt;
    index = layout_.HiddenButtons[place - 1];
  } else {
    picDraw_ = SurfaceName::Main;
    const QPointF place(arguments.X, arguments.Y);
    const bool onChevron = place.x() > innerSize_.width() - ChevronZone &&
                           place.y() > static_cast<double>(innerSize_.height()) - model_.values().ButtonsHeight;
    if (!layout_.HiddenButtons.empty() && onChevron) return 0;
    index = HitTest(model_, x, y, false);
  }
  const bool hovers = canHover(index, arguments.X);
  windows_.setHand(picDraw_, hovers);
  return hovers ? index : -1;
}

void Control::pointAt(int index) {
  if (index == model_.Button_Index()) return;
  model_.pointAt(index);
  Repaint();
  if (index < 1) return;
  const bool isShown = picDraw_ == SurfaceName::Main && !model_.placeOf(index).InChevron;
  if (isShown && windows_.isPopupVisible()) windows_.setPopupVisible(false);
  Q_EMIT events_.Hover(index);
}

void Control::picMain_MouseMove(MouseArguments arguments) {
  std::optional<int> index;
  try {
    index = pointedAt(arguments);
  } catch (const std::exception&) {
    index.reset();
  }
  if (index) {
    byKey_ = false;
    pointAt(*index);
  }
  if (model_.Button_Index() > 0) {
    Q_EMIT events_.MouseMove(model_.Button_Index(), arguments.Button, arguments.Shift, arguments.X, arguments.Y);
  }
}

void Control::picChevron_MouseMove(MouseArguments arguments) {
  arguments.Button = MouseArguments::FromPopup;
  picMain_MouseMove(arguments);
}

void Control::picDraw_MouseDown(SurfaceName from, MouseArguments arguments) {
  if (from != picDraw_ || model_.Button_Index() == -1) return;
  buttonHeld_ = true;
  Repaint();
  if (model_.Button_Index() > 0) {
    Q_EMIT events_.MouseDown(model_.Button_Index(), arguments.Button, arguments.Shift, arguments.X, arguments.Y);
  }
}

void Control::picDraw_MouseUp(SurfaceName from, MouseArguments arguments) {
  if (from != picDraw_) return;
  buttonHeld_ = false;
  if (model_.Button_Index() == -1) return;
  Repaint();
  if (model_.Button_Index() > 0) {
    Q_EMIT events_.MouseUp(model_.Button_Index(), arguments.Button, arguments.Shift, arguments.X, arguments.Y);
  }
}

void Control::picDraw_Click(SurfaceName from) {
  if (from == picDraw_ && model_.Button_Index() > 0) Q_EMIT events_.Click(model_.Button_Index());
}

void Control::picDraw_DblClick(SurfaceName from) {
  if (from != picDraw_) return;
  buttonHeld_ = true;
  Repaint();
  if (model_.Button_Index() > 0) Q_EMIT events_.DblClick(model_.Button_Index());
}

void Control::zSubclass_Proc(int uMsg, SurfaceName surface, QPoint place) {
  if (!isHooked_) return;
  switch (uMsg) {
    case Move:
    case Size:
    case KillFocus:
      windows_.setPopupVisible(false);
      break;
    case Timer:
      if (++timerTicks_ != TicksToTip) break;
      windows_.KillTimer();
      if (mouseInside_) showToolTip();
      break;
    case MouseMove:
      movedTo(surface, place);
      break;
    case MouseLeave:
      left();
      break;
    default:
      break;
  }
}

void Control::movedTo(SurfaceName surface, QPoint place) {
  if (place == lastPlace_) return;
  lastPlace_ = place;
  windows_.SetTimer();
  timerTicks_ = 0;
  if (!mouseInside_) {
    mouseInside_ = true;
    windows_.StartLeaveTracking(surface);
    Q_EMIT events_.MouseEnter();
  }
  windows_.DestroyToolTip();
}

void Control::left() {
  mouseInside_ = false;
  buttonHeld_ = false;
  model_.pointAt(-1);
  windows_.DestroyToolTip();
  Repaint();
  Q_EMIT events_.MouseLeave();
}

void Control::showToolTip() {
  windows_.DestroyToolTip();
  if (model_.Button_Index() < 1) return;
  const ToolbarButton& button = model_.Button(model_.Button_Index());
  if (button.ToolTipText.isEmpty()) return;
  const Properties& values = model_.values();
  windows_.ShowToolTip({button.ToolTipText, button.Caption, button.Caption.isEmpty() ? 0 : button.ToolTipIcon,
                        values.TooTipStyle != RectangularTip, values.ToolTipBackCol, values.ToolTipForeCol});
}

}  // namespace toolbar
