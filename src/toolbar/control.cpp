#include "toolbar/control.h"

#include <algorithm>
#include <stdexcept>

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

}  // namespace toolbar
