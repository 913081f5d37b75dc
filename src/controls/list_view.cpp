#include "controls/list_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "controls/look.h"

namespace controls {

namespace {

constexpr int NarrowestColumn = 10;
enum Column { TextColumn, SubItemColumn };

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

void ListView::picked(int row) {
  Q_EMIT ItemClick(row);
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
