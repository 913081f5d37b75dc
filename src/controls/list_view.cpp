#include "controls/list_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "controls/look.h"

namespace controls {

namespace {

constexpr int NarrowestColumn = 10;
enum Column { TextColumn, SubItemColumn };
constexpr int SavedRole = Qt::UserRole;

}  // namespace

ListView::ListView(QWidget* parent) : RowPicking(parent) {
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
  widthAsTold_ = width();
  given_ = 0;
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

void ListView::setSaved(int row, const QString& text) {
  QTreeWidgetItem* item = topLevelItem(row);
  if (item == nullptr || item->data(TextColumn, SavedRole).toString() == text) return;
  item->setData(TextColumn, SavedRole, text);
  QFont letters = font();
  letters.setBold(!text.isEmpty());
  for (const int column : {TextColumn, SubItemColumn}) item->setFont(column, letters);
}

void ListView::picked(int row) {
  Q_EMIT ItemClick(row);
}

bool ListView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex cell = indexAt(help->pos());
  const QRect shown = visualRect(cell).intersected(viewport()->rect());
  QStringList lines;
  if (cell.isValid() && sizeHintForIndex(cell).width() > shown.width()) lines += cell.data().toString();
  const QString saved = cell.siblingAtColumn(TextColumn).data(SavedRole).toString();
  if (!saved.isEmpty()) lines += saved;
  QToolTip::showText(help->globalPos(), PlainToolTip(lines.join(u'\n')), viewport(), shown);
  return true;
}

void ListView::resizeEvent(QResizeEvent* event) {
  RowPicking::resizeEvent(event);
  const int more = gain() - given_;
  given_ += more;
  if (more != 0) setColumnWidth(SubItemColumn, columnWidth(SubItemColumn) + more);
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
  const bool mouse = event->reason() == QContextMenuEvent::Mouse;
  const int row = mouse ? indexAt(event->pos()).row() : SelectedRow();
  const QPoint below = visualRect(model()->index(row, SubItemColumn)).bottomLeft();
  if (row >= 0) Q_EMIT MenuAsked(row, mouse ? event->globalPos() : viewport()->mapToGlobal(below));
}

}  // namespace controls
