#include "controls/list_view.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "controls/shown_text.h"

namespace controls {

namespace {

constexpr int NarrowestColumn = 10;
enum Column { TextColumn, SubItemColumn };

/// Whether a key opens the editor of any row.
bool opensRow(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return plain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_F2);
}

/// The digit that a key types; empty for others.
QString digitOf(const QKeyEvent& event) {
  const bool command = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier;
  const QString typed = event.text();
  return !command && typed.size() == 1 && u'0' <= typed[0] && typed[0] <= u'9' ? typed : QString();
}

}  // namespace

ListView::ListView(QWidget* parent) : RowPicking(parent) {
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setItemDelegate(new ShownTexts(this));
  connect(this, &QTreeWidget::doubleClicked, this, [this](const QModelIndex& cell) { Q_EMIT opened(cell.row(), {}); });
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(NarrowestColumn);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ListView::setColumns(const QStringList& headers, const QList<int>& widths) {
  setHeaderLabels(headers);
  for (int column = 0; column < widths.size(); ++column) setColumnWidth(column, widths[column]);
  widthAsTold_ = width();
  given_ = 0;
}

void ListView::clearRows() {
  clear();
}

void ListView::addRow(const QString& text, const QString& subItem) {
  addTopLevelItem(new QTreeWidgetItem(QStringList{text, subItem}));
}

QString ListView::rowText(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  return item == nullptr ? QString() : item->text(TextColumn);
}

QString ListView::subItem(int row) const {
  const QTreeWidgetItem* item = topLevelItem(row);
  return item == nullptr ? QString() : item->text(SubItemColumn);
}

void ListView::setSubItem(int row, const QString& text) {
  if (QTreeWidgetItem* item = topLevelItem(row)) item->setText(SubItemColumn, text);
}

void ListView::setSaved(int row, const QString& text) {
  QTreeWidgetItem* item = topLevelItem(row);
  if (item == nullptr || item->toolTip(TextColumn) == text) return;
  // At each change the view would look for the row's place among all others.
  const QSignalBlocker quiet(model());
  QFont letters = font();
  letters.setBold(!text.isEmpty());
  for (const int column : {TextColumn, SubItemColumn}) {
    item->setToolTip(column, text);
    item->setData(column, Qt::AccessibleDescriptionRole, text);
    item->setFont(column, letters);
  }
  viewport()->update();
}

void ListView::picked(int row) {
  Q_EMIT ItemClick(row);
}

void ListView::menuWanted(int row, const QPoint& place) {
  Q_EMIT menuAsked(row, place);
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const int row = selectedRow();
  const QString digit = digitOf(*event);
  const bool types = row >= 0 && !digit.isEmpty() && takesDigits_ && takesDigits_(row);
  if (row < 0 || !(types || opensRow(*event))) return RowPicking::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  picked(row);
  Q_EMIT opened(row, digit);
}

void ListView::resizeEvent(QResizeEvent* event) {
  RowPicking::resizeEvent(event);
  const int more = gain() - given_;
  given_ += more;
  if (more != 0) setColumnWidth(SubItemColumn, columnWidth(SubItemColumn) + more);
}

}  // namespace controls
