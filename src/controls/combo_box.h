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
  /// First entry that names the same but for case; -1 without one.
  int entryLike(const QString& name) const;
  /// Selects the first entry equal to `text`, case included, as SetListIndex does; false, and nothing else, without
  /// one.
  bool selectText(const QString& text);
  /// The same, throwing platform::Failure without one.
  void SetText(const QString& text);

  /// Shows a square of its colour beside each entry. The colours are asked for anew when the list drops down, and by
  /// updateSwatches.
  void setSwatches(const std::function<QColor(const QString& entry)>& colorOf);
  void updateSwatches();

  /// Twenty rows, as wide as the longest entry.
  void showPopup() override;

 Q_SIGNALS:
  void Click(controls::Cause cause);

 private:
  std::function<QColor(const QString& entry)> colorOf_;
};

}  // namespace controls
