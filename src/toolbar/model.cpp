#include "toolbar/model.h"

#include <algorithm>
#include <utility>

namespace toolbar {

namespace {

ToolbarButton blank() {
  return {QString(), nullptr, false, 0, QString(), 0, false, 0};
}

}  // namespace

Model::Model(ModelView& view, const QFont& ambientFont) : view_(view), entries_(1) {
  values_.Font = ambientFont;
}

void Model::take(const Properties& values, const std::vector<ToolbarButton>& buttons) {
  values_ = values;
  entries_.clear();
  for (const ToolbarButton& button : buttons) entries_.push_back({button, {}});
  count_ = static_cast<int>(entries_.size());
}

void Model::written(const Property& property) {
  const PropertyRow& row = rowOf(property);
  view_.PropertyChanged(row.name);
  if (property == Property(&Properties::ButtonsMode)) ApplyButtonsMode(values_, values_.ButtonsMode);
  view_.react(row.onWrite);
}

void Model::check(int index) const {
  if (index < 1 || index > count_) throw RangeError();
}

void Model::SetButton_Count(int count) {
  if (count == count_ || count < 1) return;
  entries_.resize(std::min(count, count_));
  entries_.resize(count);
  count_ = count;
  index_ = count;
  view_.PropertyChanged(u"Button_Count");
  view_.react(Effect::LayOut);
}

void Model::SetButton_Index(int index) {
  check(index);
  if (index == index_) return;
  index_ = index;
  view_.PropertyChanged(u"Button_Index");
  view_.react(Effect::Repaint);
}

QVariant Model::currentValue(PropertyID field) const {
  return index_ < 1 ? getValue(blank(), field) : getValue(Button(index_), field);
}

void Model::setCurrentValue(PropertyID field, const QVariant& value) {
  if (index_ < 1) return;
  SetValue(entry(index_).button, field, value);
  const ButtonField& row = buttonFields()[field];
  view_.PropertyChanged(row.property);
  view_.react(row.onWrite);
}

QVariant Model::GetButtonValue(int ButtonIndex, int PropertyID) const {
  return getValue(Button(ButtonIndex), PropertyID);
}

void Model::SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& newValue) {
  SetValue(entry(ButtonIndex).button, PropertyID, newValue);
  view_.react(Effect::Repaint);
}

void Model::RemoveButton(int ButtonIndex) {
  check(ButtonIndex);
  if (count_ == 1) return;
  std::move(entries_.begin() + ButtonIndex, entries_.begin() + count_, entries_.begin() + ButtonIndex - 1);
  entry(count_) = {blank(), {}};
  --count_;
  view_.react(Effect::LayOut);
}

void Model::InsertButtonTo(int ButtonIndex, int NewIndex) {
  check(ButtonIndex);
  check(NewIndex);
  const auto from = entries_.begin() + ButtonIndex - 1;
  const auto to = entries_.begin() + NewIndex - 1;
  if (from < to) std::rotate(from, from + 1, to + 1);
  if (to < from) std::rotate(to, from, from + 1);
  view_.react(Effect::LayOut);
}

void Model::MoveButtonTo(int ButtonIndex, int NewIndex) {
  check(ButtonIndex);
  check(NewIndex);
  std::swap(entry(ButtonIndex), entry(NewIndex));
  view_.react(Effect::LayOut);
}

void Model::SetButtonRemove(int value) {
  if (value != 1) return;
  RemoveButton(index_);
  index_ = std::min(index_, count_);
  view_.react(Effect::LayOut);
}

void Model::SetButtonMoveTo(int index) {
  MoveButtonTo(index_, index);
  index_ = index;
  view_.react(Effect::Repaint);
}

void Model::SetButtonInsertTo(int index) {
  InsertButtonTo(index_, index);
  index_ = index;
  view_.react(Effect::Repaint);
}

std::optional<ToolTip> Model::toolTip() const {
  constexpr int RectangularTip = 1;
  if (index_ < 1 || Button(index_).ToolTipText.isEmpty()) return std::nullopt;
  const ToolbarButton& button = Button(index_);
  return ToolTip{.Text = button.ToolTipText,
                 .title = button.Caption,
                 .Icon = button.Caption.isEmpty() ? 0 : button.ToolTipIcon,
                 .isBalloon = values_.TooTipStyle != RectangularTip,
                 .BackColor = values_.ToolTipBackCol,
                 .ForeColor = values_.ToolTipForeCol};
}

}  // namespace toolbar
