#include "controls/list_view.h"

#include <algorithm>

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "controls/look.h"
#include "controls/row_keys.h"

namespace controls {

namespace {

constexpr int NarrowestColumn = 10;
enum Column { TextColumn, SubItemColumn };

}  // namespace

ListView::ListView(QWidget* parent) : QTreeWidget(parent) {
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(NarrowestColumn);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ListView::SetColumns(const QStringList& headers, const QList<int>& widths) {
  setHeaderLabels(headers);
  for (int column = 0; column < widths.size(); ++column) setColumnWidth(column, widths[column]);
}

void ListView::ClearRows() {
  clear();
}

void ListView::AddRow(const QString& text, const QString& subItem) {
  addTopLevelItem(new QTreeWidgetItem(QStringList{text, subItem}));
}

QString ListView::RowText(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  return item == nullptr ? QString() : item->text(TextColumn);
}

QString ListView::SubItem(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  return item == nullptr ? QString() : item->text(SubItemColumn);
}

void ListView::SetSubItem(int row, const QString& text) {
  if (QTreeWidgetItem* item = topLevelItem(row)) item->setText(SubItemColumn, text);
}

int ListView::SelectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void ListView::SelectRow(int row) {
  if (QTreeWidgetItem* item = topLevelItem(row)) {
    setCurrentItem(item, TextColumn, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  } else {
    selectionModel()->clear();
  }
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const int row = indexAt(event->position().toPoint()).row();
  if (event->button() != Qt::LeftButton || row < 0) return;
  SelectRow(row);
  Q_EMIT ItemClick(row);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second press of a double click is no second click; on another row it is a press like any other.
  if (indexAt(event->position().toPoint()).row() != SelectedRow()) mousePressEvent(event);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) QTreeWidget::mouseMoveEvent(event);
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const int before = SelectedRow();
  const int page = RowCount() == 0 ? 1 : std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
  if (const std::optional<int> row = RowForKey(event->key(), before, RowCount(), page)) {
    SelectRow(*row);
  } else {
    // The focus alone makes the first row the current one: a search by letters would begin behind it.
    if (before < 0) selectionModel()->clearCurrentIndex();
    QTreeWidget::keyPressEvent(event);
  }
  const int now = SelectedRow();
  if (now >= 0 && now != before) Q_EMIT ItemClick(now);
}

bool ListView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex cell = indexAt(help->pos());
  const QRect shown = visualRect(cell).intersected(viewport()->rect());
  const bool cut = cell.isValid() && sizeHintForIndex(cell).width() > shown.width();
  QToolTip::showText(help->globalPos(), cut ? PlainToolTip(cell.data().toString()) : QString(), viewport(), shown);
  return true;
}

}  // namespace controls
