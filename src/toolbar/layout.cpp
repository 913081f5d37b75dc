#include "toolbar/layout.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "toolbar/checked_numbers.h"

namespace toolbar {

namespace {

constexpr int FrameX = 2;
constexpr int FrameY = 5;
constexpr int FramedExtraHeight = 7;
constexpr int PopupExtraWidth = 4;
constexpr int PopupExtraHeight = 7;

int rowLength(const Model& model, bool inPopup) {
  return inPopup ? model.values().ButtonsPerRow_Chev : model.values().ButtonsPerRow;
}

void check(int length) {
  if (length == 0) throw std::domain_error("a row without items");
}

bool isMultiple(int number, int length) {
  check(length);
  return number % length == 0;
}

bool isFramed(const Model& model) {
  return model.values().BorderStyle != 0;
}

int itemWidth(const Model& model, int number, bool inPopup) {
  const bool isSeparator = model.Button(number).ButtonType != 0 && !inPopup;
  return isSeparator ? model.values().ButtonsSeperatorWidth : model.values().ButtonsWidth;
}

qint64 rows(int items, int length) {
  check(length);
  return (items - 1) / length + 1;
}

}  // namespace

QPoint PlaceButton(const Model& model, int n, bool inPopup) {
  const int length = rowLength(model, inPopup);
  const bool isInset = isFramed(model) || inPopup;
  qint64 x = isInset ? FrameX : 0;
  qint64 y = isInset ? FrameY : 0;
  for (int k = 1; k < n; ++k) {
    x += itemWidth(model, k, inPopup);
    if (!isMultiple(k, length)) continue;
    y += model.values().ButtonsHeight;
    x = isInset ? FrameX : 0;
  }
  return {checkedInt(x), checkedInt(y)};
}

int HitTest(const Model& model, int x, int y, bool inPopup) {
  const int length = rowLength(model, inPopup);
  qint64 top = 0;
  qint64 bottom = isFramed(model) && !inPopup ? FrameY : 0;
  qint64 right = 0;
  for (int i = 0; i < model.Button_Count(); ++i) {
    if (isMultiple(i, length)) {
      top = bottom;
      bottom += model.values().ButtonsHeight;
      right = 0;
    }
    const qint64 left = right;
    right += itemWidth(model, i + 1, inPopup);
    if (left < x && x < right && top < y && y < bottom) return i + 1;
  }
  return -1;
}

int laidOutHeight(const Model& model) {
  const qint64 height = rows(model.Button_Count(), rowLength(model, false)) * model.values().ButtonsHeight;
  return checkedInt(height + (isFramed(model) ? FramedExtraHeight : 0));
}

void layOutButtons(Model& model, int innerWidth, Overflow overflow, Layout& layout) {
  for (int i = 1; i <= model.Button_Count(); ++i) {
    QPoint place = PlaceButton(model, i, false);
    const bool lacksRoom = innerWidth - ChevronZone < static_cast<qint64>(model.values().ButtonsWidth) + place.x();
    const bool hides =
        overflow == Overflow::Hides && model.values().ShowChevron && lacksRoom && model.Button(i).ButtonType == 0;
    if (hides) {
      layout.HiddenButtons.push_back(i);
      place = PlaceButton(model, static_cast<int>(layout.HiddenButtons.size()), true);
    }
    model.setPlace(i, {place.x(), place.y(), hides});
  }
  const auto hidden = static_cast<int>(layout.HiddenButtons.size());
  if (hidden == 0) return;
  const int length = rowLength(model, true);
  const qint64 columns = std::min(hidden, length);
  layout.popup.setWidth(checkedInt(columns * model.values().ButtonsWidth + PopupExtraWidth));
  layout.popup.setHeight(checkedInt(rows(hidden, length) * model.values().ButtonsHeight + PopupExtraHeight));
}

bool isOnChevron(const Model& model, const Layout& layout, const QSize& inner, const QPointF& place) {
  return !layout.HiddenButtons.empty() && place.x() > inner.width() - ChevronZone &&
         place.y() > static_cast<double>(inner.height()) - model.values().ButtonsHeight;
}

std::optional<int> buttonAt(const Model& model, const Layout& layout, const QPoint& pixel, bool inPopup) {
  const int place = HitTest(model, pixel.x(), pixel.y(), inPopup);
  if (!inPopup) return place;
  if (place < 1 || place > std::ssize(layout.HiddenButtons)) return std::nullopt;
  return layout.HiddenButtons[place - 1];
}

bool canHover(const Model& model, int number, double x, bool inPopup) {
  const int width = model.values().ButtonsWidth;
  if (width == 0) throw std::domain_error("buttons without a width");
  if (std::floor(x / width) >= model.values().ButtonsPerRow) return false;
  if (number < 1 || number > model.Button_Count()) return false;
  const ToolbarButton& button = model.Button(number);
  if (!button.Enabled || button.ButtonType == 1) return false;
  return inPopup || !model.placeOf(number).InChevron;
}

std::vector<int> placesForKeys(const Model& model, const Layout& layout, bool inPopup) {
  std::vector<int> places;
  for (int i = 1; i <= model.Button_Count(); ++i) {
    const ToolbarButton& button = model.Button(i);
    const bool isReached = button.Enabled && button.ButtonType != 1 && model.placeOf(i).InChevron == inPopup;
    if (isReached) places.push_back(i);
  }
  if (!inPopup && !layout.HiddenButtons.empty()) places.push_back(0);
  return places;
}

}  // namespace toolbar
