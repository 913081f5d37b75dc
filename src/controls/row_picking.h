#pragma once

#include <algorithm>
#include <optional>

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace controls {

/// The row that a key moves the selection to, in a list that shows `page` rows. `selected` is -1 if no row is selected.
/// None if the key doesn't move the selection or the list is empty.
std::optional<int> rowForKey(int key, int selected, int rows, int page);

/// Shows the tool tip of the cell under the mouse, as plain text: the cell's text if it is cut, then its tool tip role.
void showCellTip(const QAbstractItemView& view, const QHelpEvent& help);

/// A view of rows in which the user picks one: by a press of the left button, also on the row that is selected, or by a
/// key that changes the row. A row can be asked for a menu by the mouse or the keyboard. A text that its cell cuts
/// shows whole as a tool tip. Neither a drag nor a key leaves a list without its selected row.
/// In a view with extended selection the user picks several, as the toolkit has it, and nobody is told.
template <typename View>
class RowPicking : public View {
 protected:
  using View::View;

  /// The user has picked the row.
  virtual void picked(int row) = 0;
  /// The user has asked for the menu of the row.
  virtual void menuWanted(int row, const QPoint& place) = 0;

  /// Number of the selected row, -1 without one.
  int selectedRow() const {
    const QModelIndexList cells = this->selectionModel()->selectedIndexes();
    return cells.isEmpty() ? -1 : cells.first().row();
  }

  /// Selects a row without an event; a row outside the list selects nothing.
  void select(int row) {
    this->selectionModel()->setCurrentIndex(this->model()->index(row, 0),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }

  /// The row that a key leads to from another one; none if the key doesn't move.
  std::optional<int> rowBy(int key, int from) const {
    const int rows = this->model()->rowCount();
    const int page = rows == 0 ? 1 : std::max(1, this->viewport()->height() / std::max(1, this->sizeHintForRow(0)));
    return rowForKey(key, from, rows, page);
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (picksSeveral()) return View::mousePressEvent(event);
    const int row = rowAt(*event);
    if (event->button() != Qt::LeftButton || row < 0) return;
    select(row);
    picked(row);
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    // The second press of a double click picks nothing; on another row it is a press like any other.
    const QModelIndex cell = this->indexAt(event->position().toPoint());
    if (cell.row() != selectedRow()) return mousePressEvent(event);
    if (event->button() == Qt::LeftButton && cell.isValid()) Q_EMIT this->doubleClicked(cell);
  }

  void contextMenuEvent(QContextMenuEvent* event) override {
    const bool mouse = event->reason() == QContextMenuEvent::Mouse;
    const int row = mouse ? this->indexAt(event->pos()).row() : selectedRow();
    if (row < 0) return;
    const QRect lastCell = this->visualRect(this->model()->index(row, this->model()->columnCount() - 1));
    menuWanted(row, mouse ? event->globalPos() : this->viewport()->mapToGlobal(lastCell.bottomLeft()));
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() == Qt::NoButton) View::mouseMoveEvent(event);
  }

  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return View::viewportEvent(event);
    showCellTip(*this, static_cast<const QHelpEvent&>(*event));
    return true;
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (picksSeveral()) return View::keyPressEvent(event);
    const int before = selectedRow();
    if (const std::optional<int> row = rowBy(event->key(), before)) {
      select(*row);
    } else {
      // The focus alone makes the first row the current one: a search by letters would begin behind it.
      if (before < 0) this->selectionModel()->clearCurrentIndex();
      View::keyPressEvent(event);
    }
    const int now = selectedRow();
    if (now >= 0 && now != before) picked(now);
  }

  /// Ctrl doesn't take the selection off a row, as it does in the toolkit.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override {
    const QItemSelectionModel::SelectionFlags command = View::selectionCommand(index, event);
    return command.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : command;
  }

 private:
  bool picksSeveral() const { return this->selectionMode() == QAbstractItemView::ExtendedSelection; }
  int rowAt(const QMouseEvent& event) const { return this->indexAt(event.position().toPoint()).row(); }
};

}  // namespace controls
