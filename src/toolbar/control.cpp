#include "toolbar/control.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "toolbar/repaint.h"
#include "toolbar/stored_form.h"

namespace toolbar {

Control::Control(Windows& windows, Events& events, const Ambient& ambient)
    : windows_(windows), events_(events), ambient_(ambient), model_(*this, ambient.Font) {}

bool Control::UserControl_ReadProperties(const platform::PropertyBag& bag) {
  std::optional<StoredToolBar> stored = ReadStoredForm(bag, ambient_.Font);
  const bool isSound = stored.has_value();
  if (!isSound) stored = ReadStoredForm(platform::PropertyBag(), ambient_.Font);
  model_.Take(stored->Values, std::move(stored->Buttons));
  model_.PointAt(ambient_.UserMode ? -1 : 1);
  if (ambient_.UserMode) windows_.CreateChevronWindow();
  isHooked_ = ambient_.UserMode;
  UserControl_Resize();
  return isSound;
}

void Control::UserControl_WriteProperties(platform::PropertyBag& bag) const {
  StoredToolBar stored{model_.Values(), {}, model_.Button_Index()};
  for (int i = 1; i <= model_.Button_Count(); ++i) stored.Buttons.push_back(model_.Button(i));
  WriteStoredForm(bag, stored, ambient_.Font);
}

void Control::PropertyChanged(QStringView name) {
  events_.PropertyChanged(name.toString());
}

void Control::React(Effect effect) {
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

void Control::Resize(const QSize& innerSize) {
  if (innerSize == innerSize_) return;
  innerSize_ = innerSize;
  UserControl_Resize();
}

void Control::layOut() {
  const int height = LaidOutHeight(model_);
  if (height < 0) throw std::domain_error("a height below 0");
  innerSize_.setHeight(std::min(height, Surface::LargestSide));
  windows_.SetHeight(innerSize_.height());
  layout_.HiddenButtons.clear();
  LayOut(model_, innerSize_.width(), ambient_.UserMode, layout_);
}

void Control::UserControl_Resize() {
  const QSize popup = layout_.Popup;
  try {
    layOut();
  } catch (const std::exception&) {
    // What was laid out before stays, and is shown all the same.
  }
  if (layout_.Popup != popup) {
    chevron_.Resize(layout_.Popup);
    windows_.ResizePopup(layout_.Popup);
    windows_.Present(SurfaceName::Chevron);
  }
  backgroundDrawn_ = false;
  drawn().Resize(innerSize_);
  if (picDraw_ == SurfaceName::Chevron) {
    layout_.Popup = innerSize_;
    windows_.MovePopup(QRect(QPoint(0, 0), innerSize_));
  }
  Repaint();
}

void Control::Repaint() {
  const SurfaceName surface = picDraw_;
  const bool opens =
      Paint(drawn(),
            {model_, layout_.HiddenButtons, innerSize_, surface == SurfaceName::Main, buttonHeld_, ambient_.UserMode},
            backgroundDrawn_);
  windows_.Present(surface);
  if (!opens) return;
  backgroundDrawn_ = false;
  showChevronPopup();
}

void Control::showChevronPopup() {
  const QRect control = windows_.ControlOnScreen();
  const QSize popup = chevron_.Image().image().size();
  windows_.MovePopup(
      QRect(QPoint(control.x() + control.width() - popup.width(), control.y() + control.height() + 1), popup));
  picDraw_ = SurfaceName::Chevron;
  Repaint();
  windows_.SetPopupVisible(true);
}

}  // namespace toolbar
