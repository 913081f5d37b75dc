#pragma once

#include <type_traits>
#include <vector>

#include "platform/failure.h"
#include "toolbar/button_values.h"
#include "toolbar/properties.h"

namespace toolbar {

/// A button's number lies outside the list.
class RangeError : public platform::Failure {
 public:
  static constexpr int Number = 33;
  RangeError() : Failure(QStringLiteral("Index out or range!!")) {}
};

/// Who shows a model.
class ModelView {
 public:
  virtual ~ModelView() = default;
  virtual void PropertyChanged(QStringView name) = 0;
  virtual void react(Effect effect) = 0;
};

/// The toolbar less its surfaces and its input: properties and list of buttons, numbered from 1. Every write tells
/// the view.
class Model {
 public:
  Model(ModelView& view, const QFont& ambientFont);

  const Properties& values() const { return values_; }
  /// The result of reading a stored toolbar: nothing is told.
  void take(const Properties& values, const std::vector<ToolbarButton>& buttons);
  template <typename T>
  void setValue(T Properties::*property, const std::type_identity_t<T>& value) {
    values_.*property = value;
    written(property);
  }

  int Button_Count() const { return count_; }
  /// Keeps the buttons that remain, adds new ones at the end and makes the last one current. The same count and one
  /// below 1 do nothing.
  void SetButton_Count(int count);

  /// The button that the pointer is over, 0 for the chevron, -1 for none; in a form's designer the button that the
  /// properties of single buttons address.
  int Button_Index() const { return index_; }
  /// Throws RangeError outside 1 to Button_Count.
  void SetButton_Index(int index);
  /// The same without check and without telling.
  void pointAt(int index) { index_ = index; }

  /// A field of the button that Button_Index names: no value while that is below 1, and a write does nothing then.
  QVariant currentValue(PropertyID field) const;
  void setCurrentValue(PropertyID field, const QVariant& value);

  /// A field of any button. Throw std::out_of_range for a button that isn't there.
  QVariant GetButtonValue(int ButtonIndex, int PropertyID) const;
  void SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& newValue);

  // These throw RangeError for an index outside 1 to Button_Count and leave the list as it was.
  /// The last button that there is stays.
  void RemoveButton(int ButtonIndex);
  /// Takes the button out and puts it at the new place; those between move up.
  void InsertButtonTo(int ButtonIndex, int NewIndex);
  /// The two change places.
  void MoveButtonTo(int ButtonIndex, int NewIndex);

  // The same as commands for the current button; reading them gives WriteOnly.
  static constexpr int WriteOnly = -1;
  /// 1 removes it, any other value does nothing.
  void SetButtonRemove(int value);
  void SetButtonMoveTo(int index);
  void SetButtonInsertTo(int index);

  const ToolbarButton& Button(int number) const { return entry(number).button; }
  const ButtonPlace& placeOf(int number) const { return entry(number).place; }
  /// For the layout; nothing is told.
  void setPlace(int number, const ButtonPlace& place) { entry(number).place = place; }

 private:
  /// A button takes its place along until the next layout.
  struct Entry {
    ToolbarButton button;
    ButtonPlace place;
  };

  const Entry& entry(int number) const { return entries_.at(static_cast<size_t>(number) - 1); }
  Entry& entry(int number) { return entries_.at(static_cast<size_t>(number) - 1); }
  void written(const Property& property);
  void check(int index) const;

  ModelView& view_;
  Properties values_;
  std::vector<Entry> entries_;  ///< blank ones may follow the last button
  int count_ = 1;
  int index_ = 1;
};

}  // namespace toolbar
