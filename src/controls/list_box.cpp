#include "controls/list_box.h"

#include <algorithm>

#include <QMouseEvent>

#include "controls/look.h"
#include "controls/row_keys.h"
#include "platform/code_page.h"
#include "platform/failure.h"

namespace controls {

ListBox::ListBox(Order order, QWidget* parent) : QListWidget(parent), order_(order) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setUniformItemSizes(true);
}

void ListBox::Clear() {
  clear();
}

void ListBox::AddItem(const QString& text) {
  int from = 0;
  int to = count();
  if (order_ == Order::AsAdded) from = to;
  while (from < to) {
    const int middle = (from + to) / 2;
    if (platform::NameLess(text, item(middle)->text())) {
      to = middle;
    } else {
      from = middle + 1;
    }
  }
  insertItem(from, text);
}

QString ListBox::List(int index) const {
  const QListWidgetItem* row = item(index);
  return row == nullptr ? QString() : row->text();
}

int ListBox::ListIndex() const {
  const QModelIndexList rows = selectionModel()->selectedIndexes();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::SetListIndex(int index) {
  if (index < -1 || index >= count()) throw platform::Failure(QStringLiteral("Invalid entry of a list"));
  select(index);
  if (index >= 0) Q_EMIT Click(Cause::Code);
}

QString ListBox::Text() const {
  return List(ListIndex());
}

void ListBox::SetToolTip(int index, const QString& text) {
  if (QListWidgetItem* row = item(index)) row->setToolTip(PlainToolTip(text));
}

void ListBox::select(int row) {
  setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

void ListBox::mousePressEvent(QMouseEvent* event) {
  const int row = indexAt(event->position().toPoint()).row();
  if (event->button() != Qt::LeftButton || row < 0) return;
  select(row);
  Q_EMIT Click(Cause::User);
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second press of a double click is no second Click; on another row it is a press like any other.
  if (indexAt(event->position().toPoint()).row() != ListIndex()) mousePressEvent(event);
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) QListWidget::mouseMoveEvent(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  const int before = ListIndex();
  const int page = count() == 0 ? 1 : std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
  if (const std::optional<int> row = RowForKey(event->key(), before, count(), page)) {
    select(*row);
  } else {
    // The focus alone makes the first row the current one: a search by letters would begin behind it.
    if (before < 0) selectionModel()->clearCurrentIndex();
    QListWidget::keyPressEvent(event);
  }
  const int now = ListIndex();
  if (now >= 0 && now != before) Q_EMIT Click(Cause::User);
}

}  // namespace controls
