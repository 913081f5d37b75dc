#pragma once

#include <optional>
#include <type_traits>
#include <vector>

#include "platform/failure.h"
#include "toolbar/button_values.h"
#include "toolbar/properties.h"
#include "toolbar/surroundings.h"

namespace toolbar {

/// The number of a button is outside the list.
class RangeError : public platform::Failure {
 public:
  static constexpr int Number = 33;
  RangeError() : Failure(QStringLiteral("Index out or range!!")) {}
};

/// Shows a model.
class ModelView {
 public:
  virtual ~ModelView() = default;
  virtual void PropertyChanged(QStringView name) = 0;
  virtual void react(Effect effect) = 0;
};

/// The toolbar's properties and its list of buttons, numbered from 1. Every write notifies the view.
class Model {
 public:
  Model(ModelView& view, const QFont& ambientFont);

  const Properties& values() const { return values_; }
  /// Sets everything after reading a stored toolbar. Doesn't notify the view.
  void take(const Properties& values, const std::vector<ToolbarButton>& buttons);
  template <typename T>
  void setValue(T Properties::*property, const std::type_identity_t<T>& value) {
    values_.*property = value;
    written(property);
  }

  int Button_Count() const { return count_; }
  /// Adds or removes buttons at the end, and sets Button_Index to the last one. The present count, or one below 1,
  /// does nothing.
  void SetButton_Count(int count);

  /// The button that the pointer is over, 0 for the chevron, -1 for none. In a form's designer, the button that is
  /// being edited.
  int Button_Index() const { return index_; }
  /// Throws RangeError outside 1 to Button_Count.
  void SetButton_Index(int index);
  /// Sets Button_Index without a check. Doesn't notify the view.
  void pointAt(int index) { index_ = index; }

  /// A field of the button Button_Index. Below 1 its value is that of a blank button, and a write does nothing.
  QVariant currentValue(PropertyID field) const;
  void setCurrentValue(PropertyID field, const QVariant& value);

  /// A field of any button. Throw std::out_of_range for a button that doesn't exist.
  QVariant GetButtonValue(int ButtonIndex, int PropertyID) const;
  void SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& newValue);

  // These throw RangeError for an index outside 1 to Button_Count, and then change nothing.
  /// Does nothing if there is only one button.
  void RemoveButton(int ButtonIndex);
  /// Moves the button to the new place. The buttons between move by one.
  void InsertButtonTo(int ButtonIndex, int NewIndex);
  /// Swaps the two buttons.
  void MoveButtonTo(int ButtonIndex, int NewIndex);

  // The same for the button Button_Index, as properties that can only be written: reading one gives WriteOnly.
  static constexpr int WriteOnly = -1;
  static int ButtonRemove() { return WriteOnly; }
  static int ButtonMoveTo() { return WriteOnly; }
  static int ButtonInsertTo() { return WriteOnly; }
  /// 1 removes the button. Any other value does nothing.
  void SetButtonRemove(int value);
  void SetButtonMoveTo(int index);
  void SetButtonInsertTo(int index);

  /// The tool tip of the button Button_Index; none without a text.
  std::optional<ToolTip> toolTip() const;

  const ToolbarButton& Button(int number) const { return entry(number).button; }
  const ButtonPlace& placeOf(int number) const { return entry(number).place; }
  /// For the layout. Doesn't notify the view.
  void setPlace(int number, const ButtonPlace& place) { entry(number).place = place; }

 private:
  /// A button that moves in the list keeps its place until the next layout.
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
  std::vector<Entry> entries_;  ///< may be longer than count_, with blank entries at the end
  int count_ = 1;
  int index_ = 1;
};

}  // namespace toolbar
