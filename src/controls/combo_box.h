#pragma once

#include <functional>

#include <QComboBox>

#include "controls/cause.h"
#include "controls/wheel_with_focus.h"

namespace controls {

/// A drop-down list that takes no free text. Filling, clearing and removing select nothing and fire nothing; a written
/// ListIndex and the user's own choice fire Click, also when the entry is the one that was selected before.
class ComboBox : public WheelWithFocus<QComboBox> {
  Q_OBJECT

 public:
  explicit ComboBox(QWidget* parent = nullptr);

  void Clear();
  void AddItem(const QString& text);
  /// Removes the entry; nothing is selected afterwards when it was the selected one. Throws platform::Failure for an
  /// index outside the list.
  void RemoveItem(int index);
  int ListCount() const { return count(); }
  QString List(int index) const { return itemText(index); }
  int ListIndex() const { return currentIndex(); }
  /// -1 selects nothing and fires no Click. Throws platform::Failure for an index outside the list.
  void SetListIndex(int index);
  /// Text of the selected entry, empty without one.
  QString Text() const { return currentText(); }
  /// The first entry equal to a name, in any case; -1 if there is none.
  int entryLike(const QString& name) const;
  /// Selects the first entry equal to `text`, case included, as SetListIndex does. Returns false and does nothing if
  /// there is none.
  bool selectText(const QString& text);
  /// The same, but throws platform::Failure if there is none.
  void SetText(const QString& text);

  /// Shows a square of an entry's colour beside it. `colorOf` is asked again each time the list drops down, and by
  /// updateSwatches.
  void setSwatches(const std::function<QColor(const QString& entry)>& colorOf);
  void updateSwatches();

  /// The list shows up to twenty rows and is as wide as its longest entry.
  void showPopup() override;

 Q_SIGNALS:
  void Click(controls::Cause cause);

 private:
  std::function<QColor(const QString& entry)> colorOf_;
};

}  // namespace controls
