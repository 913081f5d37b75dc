#include "controls/list_box.h"

#include <algorithm>

#include "controls/shown_text.h"
#include "platform/code_page.h"
#include "platform/failure.h"

namespace controls {
namespace {

/// A row with its text and its looks near at hand: work on long lists spends its time on looking for them.
struct Row : QListWidgetItem {
  explicit Row(const QString& shown) : QListWidgetItem(shown), name(shown), order(platform::upperCase(shown)) {}
  const QString name;
  const QString order;  ///< see platform::nameLess
  QString whyBold;
  QString whyJoined;
  QString tip;
  bool isGrey = false;
};

/// All rows come from AddItem.
Row* rowIn(const QListWidget& list, int index) {
  return static_cast<Row*>(list.item(index));
}

/// Tells screen readers what ground, bold letters and tool tip tell.
void describe(Row& row) {
  QStringList lines{row.whyJoined, row.whyBold, row.tip};
  lines.removeAll(QString());
  row.setData(Qt::AccessibleDescriptionRole, lines.join(u'\n'));
}

}  // namespace

ListBox::ListBox(Order order, QWidget* parent) : RowPicking(parent), order_(order) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setItemDelegate(new ShownTexts(this));
  setUniformItemSizes(true);
}

void ListBox::Clear() {
  clear();
}

void ListBox::AddItem(const QString& text) {
  auto* row = new Row(text);
  int from = 0;
  int to = count();
  if (order_ == Order::AsAdded) from = to;
  while (from < to) {
    const int middle = (from + to) / 2;
    if (row->order < rowIn(*this, middle)->order) {
      to = middle;
    } else {
      from = middle + 1;
    }
  }
  insertItem(from, row);
  // The view would lay out and paint all rows again for each row that is added.
  setUpdatesEnabled(false);
  frame_.request();
}

QString ListBox::List(int index) const {
  const Row* row = rowIn(*this, index);
  return row == nullptr ? QString() : row->name;
}

int ListBox::ListIndex() const {
  if (selectionMode() == QAbstractItemView::SingleSelection) return selectedRow();
  const QModelIndex current = currentIndex();
  return selectionModel()->isSelected(current) ? current.row() : selectedRow();
}

void ListBox::SetListIndex(int index) {
  if (index < -1 || index >= count()) throw platform::Failure(QStringLiteral("Invalid entry of a list"));
  select(index);
  if (index >= 0) Q_EMIT Click(Cause::Code);
}

void ListBox::allowSeveral() {
  setSelectionMode(QAbstractItemView::ExtendedSelection);
}

std::vector<int> ListBox::selectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& cell : selectionModel()->selectedIndexes()) rows.push_back(cell.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void ListBox::selectToo(int index) {
  selectionModel()->setCurrentIndex(model()->index(index, 0), QItemSelectionModel::Select);
}

QString ListBox::Text() const {
  return List(ListIndex());
}

void ListBox::setRowToolTip(int index, const QString& text) {
  Row* row = rowIn(*this, index);
  // A change of one row, even from nothing to nothing, has the list look for the row from its end.
  if (row == nullptr || row->tip == text) return;
  row->tip = text;
  row->setToolTip(text);
  describe(*row);
}

void ListBox::setBold(int index, const QString& why) {
  Row* row = rowIn(*this, index);
  if (row == nullptr || row->whyBold == why) return;
  row->whyBold = why;
  QFont letters = font();
  letters.setBold(true);
  row->setData(Qt::FontRole, why.isEmpty() ? QVariant() : QVariant(letters));
  describe(*row);
}

void ListBox::setJoined(int index, const QString& why) {
  Row* row = rowIn(*this, index);
  if (row == nullptr || row->whyJoined == why) return;
  row->whyJoined = why;
  const QBrush ground = palette().brush(QPalette::Inactive, QPalette::Highlight);
  row->setData(Qt::BackgroundRole, why.isEmpty() ? QVariant() : QVariant(ground));
  describe(*row);
}

void ListBox::setGrey(int index, bool grey) {
  Row* row = rowIn(*this, index);
  if (row == nullptr || row->isGrey == grey) return;
  row->isGrey = grey;
  const QBrush brush = palette().brush(QPalette::Disabled, QPalette::Text);
  row->setData(Qt::ForegroundRole, grey ? QVariant(brush) : QVariant());
}

QString ListBox::told(int index) const {
  const QListWidgetItem* row = item(index);
  return row == nullptr ? QString() : row->data(Qt::AccessibleDescriptionRole).toString();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  if (!joins_ || ListIndex() < 0) return RowPicking::keyPressEvent(event);
  if (event->key() == Qt::Key_Space) return Q_EMIT joinAsked(currentRow());
  const auto row = event->modifiers() == Qt::ControlModifier ? rowBy(event->key(), currentRow()) : std::nullopt;
  if (!row) return RowPicking::keyPressEvent(event);
  selectionModel()->setCurrentIndex(model()->index(*row, 0), QItemSelectionModel::NoUpdate);
}

void ListBox::timerEvent(QTimerEvent* event) {
  // The view's layout timer would fire at each yield until the frame is shown.
  if (updatesEnabled()) RowPicking::timerEvent(event);
}

void ListBox::picked(int) {
  Q_EMIT Click(Cause::User);
}

void ListBox::menuWanted(int row, const QPoint& place) {
  Q_EMIT menuAsked(row, place);
}

}  // namespace controls
