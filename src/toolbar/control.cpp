#include "toolbar/control.h"

#include <algorithm>
#include <stdexcept>

#include "toolbar/checked_numbers.h"
#include "toolbar/repaint.h"
#include "toolbar/stored_form.h"
#include "toolbar/tool_bar_events.h"

namespace toolbar {

Control::Control(Windows& windows, ToolBarEvents& events, const Ambient& ambient)
    : windows_(windows), events_(events), ambient_(ambient), model_(*this, ambient.Font) {}

bool Control::UserControl_ReadProperties(const propertybag::PropertyBag& bag) {
  std::optional<StoredToolBar> stored = readStoredForm(bag, ambient_.Font);
  const bool isSound = stored.has_value();
  if (!isSound) stored = readStoredForm(propertybag::PropertyBag(), ambient_.Font);
  model_.take(stored->values, stored->buttons);
  model_.pointAt(ambient_.UserMode ? -1 : 1);
  if (ambient_.UserMode) windows_.CreateChevronWindow();
  isHooked_ = ambient_.UserMode;
  UserControl_Resize();
  return isSound;
}

void Control::UserControl_WriteProperties(propertybag::PropertyBag& bag) const {
  StoredToolBar stored{model_.values(), {}, model_.Button_Index()};
  for (int i = 1; i <= model_.Button_Count(); ++i) stored.buttons.push_back(model_.Button(i));
  writeStoredForm(bag, stored, ambient_.Font);
}

void Control::PropertyChanged(QStringView name) {
  Q_EMIT events_.PropertyChanged(name.toString());
}

void Control::react(Effect effect) {
  switch (effect) {
    case Effect::None:
      break;
    case Effect::RepaintBackground:
      backgroundDrawn_ = false;
      Repaint();
      break;
    case Effect::Repaint:
      Repaint();
      break;
    case Effect::LayOut:
      UserControl_Resize();
      break;
  }
}

void Control::resize(const QSize& innerSize) {
  if (innerSize == innerSize_) return;
  innerSize_ = innerSize;
  UserControl_Resize();
}

void Control::layOut() {
  const int height = laidOutHeight(model_);
  if (height < 0) throw std::domain_error("a height below 0");
  innerSize_.setHeight(std::min(height, ButtonSurface::LargestSide));
  windows_.SetHeight(innerSize_.height());
  layout_.HiddenButtons.clear();
  layOutButtons(model_, innerSize_.width(), ambient_.UserMode ? Overflow::Hides : Overflow::Stays, layout_);
}

void Control::UserControl_Resize() {
  const QSize popup = layout_.popup;
  try {
    layOut();
  } catch (const std::exception&) {
    // Whatever was laid out before the failure is shown.
  }
  if (layout_.popup != popup) {
    chevron_.resize(layout_.popup);
    windows_.resizePopup(layout_.popup);
    windows_.present(SurfaceName::Chevron);
  }
  backgroundDrawn_ = false;
  drawn().resize(innerSize_);
  if (picDraw_ == SurfaceName::Chevron) {
    layout_.popup = innerSize_;
    windows_.movePopup(QRect(QPoint(0, 0), innerSize_));
  }
  Repaint();
}

void Control::Repaint() {
  const SurfaceName surface = picDraw_;
  const bool opens =
      paint(drawn(),
            {model_, layout_.HiddenButtons, innerSize_, surface == SurfaceName::Main, buttonHeld_, ambient_.UserMode},
            backgroundDrawn_);
  windows_.present(surface);
  if (!opens) return;
  backgroundDrawn_ = false;
  showChevronPopup();
}

void Control::showChevronPopup() {
  const QRect control = windows_.controlOnScreen();
  const QSize popup = chevron_.raster().image().size();
  windows_.movePopup(
      QRect(QPoint(control.x() + control.width() - popup.width(), control.y() + control.height() + 1), popup));
  picDraw_ = SurfaceName::Chevron;
  Repaint();
  windows_.setPopupVisible(true);
}

/// The button that the pointer is over, 0 for the chevron, -1 for nothing. None if Button_Index has to stay as it is.
std::optional<int> Control::pointedAt(const MouseArguments& arguments) {
  const QPoint pixel(nearestInt(arguments.X), nearestInt(arguments.Y));
  const bool inPopup = arguments.Button == MouseArguments::FromPopup;
  picDraw_ = inPopup ? SurfaceName::Chevron : SurfaceName::Main;
  if (!inPopup && isOnChevron(model_, layout_, innerSize_, {arguments.X, arguments.Y})) return 0;
  const std::optional<int> index = buttonAt(model_, layout_, pixel, inPopup);
  if (!index) return std::nullopt;
  const bool hovers = canHover(model_, *index, arguments.X, inPopup);
  windows_.setHand(picDraw_, hovers);
  return hovers ? *index : -1;
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
  constexpr int TicksToTip = 5;
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
  if (const auto tip = model_.toolTip()) windows_.ShowToolTip(*tip);
}

std::vector<int> Control::keyPlaces() const {
  return placesForKeys(model_, layout_, picDraw_ == SurfaceName::Chevron && windows_.isPopupVisible());
}

void Control::stepByKey(int places) {
  const std::vector<int> all = keyPlaces();
  if (all.empty()) return;
  const auto count = static_cast<int>(all.size());
  const auto present = std::find(all.begin(), all.end(), model_.Button_Index());
  int next = places > 0 ? 0 : count - 1;
  if (present != all.end()) next = ((static_cast<int>(present - all.begin()) + places) % count + count) % count;
  pointByKey(all[next]);
}

void Control::endByKey(bool last) {
  const std::vector<int> all = keyPlaces();
  if (!all.empty()) pointByKey(last ? all.back() : all.front());
}

bool Control::enterByKey() {
  const std::vector<int> all = keyPlaces();
  if (all.empty() || std::find(all.begin(), all.end(), model_.Button_Index()) != all.end()) return false;
  endByKey(false);
  return true;
}

void Control::leaveByKey() {
  if (!byKey_) return;
  byKey_ = false;
  model_.pointAt(-1);
  Repaint();
}

void Control::pointByKey(int index) {
  byKey_ = true;
  buttonHeld_ = false;  // else a chevron that the mouse has pressed would open its popup again
  if (!windows_.isPopupVisible()) picDraw_ = SurfaceName::Main;
  pointAt(index);
}

void Control::pressByKey() {
  if (!windows_.isPopupVisible()) picDraw_ = SurfaceName::Main;
  const int index = model_.Button_Index();
  if (index > 0 && model_.Button(index).Enabled) picDraw_Click(picDraw_);
  if (index != 0) return;
  buttonHeld_ = true;
  Repaint();
  buttonHeld_ = false;
  if (picDraw_ == SurfaceName::Chevron) stepByKey(1);
}

bool Control::escapeByKey() {
  if (!windows_.isPopupVisible()) return false;
  windows_.setPopupVisible(false);
  model_.pointAt(-1);
  pointByKey(0);
  return true;
}

}  // namespace toolbar
