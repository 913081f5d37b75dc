#pragma once

#include <QTreeWidget>

#include "controls/row_picking.h"

namespace controls {

/// A list of rows in two columns under headers, with full-row selection. Nothing is selected until the user picks a
/// row. A value that its column cuts shows whole as a tool tip.
class ListView : public RowPicking<QTreeWidget> {
  Q_OBJECT

 public:
  explicit ListView(QWidget* parent = nullptr);

  /// Headers and widths (pixels) of the two columns.
  void SetColumns(const QStringList& headers, const QList<int>& widths);
  void ClearRows();
  void AddRow(const QString& text, const QString& subItem);
  int RowCount() const { return topLevelItemCount(); }
  QString RowText(int row) const;
  QString SubItem(int row) const;
  void SetSubItem(int row, const QString& text);
  /// Number of the selected row, -1 without one.
  int SelectedRow() const { return selectedRow(); }
  /// Selects the row as code would: fires nothing. -1 selects nothing.
  void SelectRow(int row) { select(row); }

 Q_SIGNALS:
  /// A click on a row, also on the selected one, or a change of row by the keyboard; neither code nor focus.
  void ItemClick(int row);

 protected:
  void picked(int row) override;
  bool viewportEvent(QEvent* event) override;
};

}  // namespace controls
