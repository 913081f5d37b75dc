#include <algorithm>

#include "toolbar/control.h"

namespace toolbar {

namespace {

bool isReached(const Model& model, int number, bool inPopup) {
  const ToolbarButton& button = model.Button(number);
  return button.Enabled && button.ButtonType != 1 && model.placeOf(number).InChevron == inPopup;
}

}  // namespace

std::vector<int> Control::keyPlaces() const {
  const bool inPopup = picDraw_ == SurfaceName::Chevron && windows_.isPopupVisible();
  std::vector<int> places;
  for (int i = 1; i <= model_.Button_Count(); ++i) {
    if (isReached(model_, i, inPopup)) places.push_back(i);
  }
  if (!inPopup && !layout_.HiddenButtons.empty()) places.push_back(0);
  return places;
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
  if (!windows_.isPopupVisible()) picDraw_ = SurfaceName::Main;
  pointAt(index);
}

void Control::pressByKey() {
  if (!windows_.isPopupVisible()) picDraw_ = SurfaceName::Main;
  if (model_.Button_Index() > 0) {
    picDraw_Click(picDraw_);
    return;
  }
  if (model_.Button_Index() != 0) return;
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
