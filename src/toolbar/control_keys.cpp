#include <algorithm>

#include "toolbar/control.h"

namespace toolbar {

namespace {

bool isReached(const ToolbarButton& button, bool inPopup) {
  return button.Enabled && button.ButtonType != 1 && button.InChevron == inPopup;
}

}  // namespace

std::vector<int> Control::KeyPlaces() const {
  const bool inPopup = picDraw_ == SurfaceName::Chevron && windows_.IsPopupVisible();
  std::vector<int> places;
  for (int i = 1; i <= model_.Button_Count(); ++i) {
    if (isReached(model_.Button(i), inPopup)) places.push_back(i);
  }
  if (!inPopup && !layout_.HiddenButtons.empty()) places.push_back(0);
  return places;
}

void Control::StepByKey(int places) {
  const std::vector<int> all = KeyPlaces();
  if (all.empty()) return;
  const auto count = int(all.size());
  const auto present = std::find(all.begin(), all.end(), model_.Button_Index());
  int next = places > 0 ? 0 : count - 1;
  if (present != all.end()) next = ((int(present - all.begin()) + places) % count + count) % count;
  PointByKey(all[size_t(next)]);
}

void Control::EndByKey(bool last) {
  const std::vector<int> all = KeyPlaces();
  if (!all.empty()) PointByKey(last ? all.back() : all.front());
}

bool Control::EnterByKey() {
  const std::vector<int> all = KeyPlaces();
  if (all.empty() || std::find(all.begin(), all.end(), model_.Button_Index()) != all.end()) return false;
  EndByKey(false);
  return true;
}

void Control::LeaveByKey() {
  if (!byKey_) return;
  byKey_ = false;
  model_.PointAt(-1);
  Repaint();
}

void Control::PointByKey(int index) {
  byKey_ = true;
  if (!windows_.IsPopupVisible()) picDraw_ = SurfaceName::Main;
  pointAt(index);
}

void Control::PressByKey() {
  if (!windows_.IsPopupVisible()) picDraw_ = SurfaceName::Main;
  if (model_.Button_Index() > 0) {
    picDraw_Click(picDraw_);
    return;
  }
  if (model_.Button_Index() != 0) return;
  buttonHeld_ = true;
  Repaint();
  buttonHeld_ = false;
  if (picDraw_ == SurfaceName::Chevron) StepByKey(1);
}

bool Control::EscapeByKey() {
  if (!windows_.IsPopupVisible()) return false;
  windows_.SetPopupVisible(false);
  model_.PointAt(-1);
  PointByKey(0);
  return true;
}

}  // namespace toolbar
