#pragma once

#include <vector>

#include <QListWidget>

#include "controls/cause.h"
#include "controls/frame_pacer.h"
#include "controls/row_picking.h"

namespace controls {

/// A list box of one column and one selected row. A sorted one keeps its rows in the order of platform::nameLess
/// (equal names in the order in which they came); a selected row stays selected when others come before it.
/// Click fires for a written ListIndex, a mouse click on a row (also on the selected one) and a change by the keyboard.
class ListBox : public RowPicking<QListWidget> {
  Q_OBJECT

 public:
  enum class Order { AsAdded, Sorted };
  explicit ListBox(Order order, QWidget* parent = nullptr);

  /// Removes all rows; fires nothing.
  void Clear();
  void AddItem(const QString& text);
  int ListCount() const { return count(); }
  QString List(int index) const;
  /// Number of the selected row, -1 without one.
  int ListIndex() const;
  /// -1 selects nothing and fires no Click. Throws platform::Failure for a row outside the list.
  void SetListIndex(int index);
  /// Lets the user select several rows, with Ctrl and Shift as everywhere. ListIndex is the one that the keys move.
  void allowSeveral();
  /// The selected rows in their order.
  std::vector<int> selectedRows() const;
  /// Selects a row beside those that are selected.
  void selectToo(int index);
  /// Text of the selected row, empty without one.
  QString Text() const;
  /// Sets a row's tool tip, plain text; an empty one removes it. If the row's name is cut, the tip begins with it.
  void setRowToolTip(int index, const QString& text);
  /// Shows the text of a row in bold letters; `why` tells who doesn't see that, an empty one takes it back.
  void setBold(int index, const QString& why);
  /// Shows the text of a row in grey letters unless the row is selected. Why that is so belongs in the tool tip.
  void setGrey(int index, bool grey);
  /// Lets the user ask for rows beside the selected one: Ctrl with a key that moves leads the focus on, Space asks.
  void setJoining(bool joins) { joins_ = joins; }
  /// Shows a row as joined to the selected one; `why` tells who doesn't see that, an empty one takes it back.
  void setJoined(int index, const QString& why);
  /// What bold letters and tool tip tell of a row, a line each: also its description for screen readers.
  QString told(int index) const;

 Q_SIGNALS:
  void Click(controls::Cause cause);
  /// The user has asked for a row beside the selected one.
  void joinAsked(int row);
  /// The user has asked for the menu of a row, by the mouse or the keyboard.
  void menuAsked(int row, const QPoint& place);

 protected:
  void picked(int row) override;
  void menuWanted(int row, const QPoint& place) override;
  void keyPressEvent(QKeyEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  Order order_;
  bool joins_ = false;
  FramePacer frame_{[this] { setUpdatesEnabled(true); }};  ///< shows the added rows, once a frame
};

}  // namespace controls
