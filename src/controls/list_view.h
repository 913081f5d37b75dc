#pragma once

#include <functional>

#include <QTreeWidget>

#include "controls/row_picking.h"

namespace controls {

/// A list of rows in two columns under headers, with full-row selection. Nothing is selected until the user picks a
/// row. The last column takes what a wider list gives. A value that its column cuts shows whole as a tool tip.
class ListView : public RowPicking<QTreeWidget> {
  Q_OBJECT

 public:
  explicit ListView(QWidget* parent = nullptr);

  /// Headers and widths (pixels) of the two columns.
  void setColumns(const QStringList& headers, const QList<int>& widths);
  void clearRows();
  void addRow(const QString& text, const QString& subItem);
  int rowCount() const { return topLevelItemCount(); }
  QString rowText(int row) const;
  QString subItem(int row) const;
  void setSubItem(int row, const QString& text);
  /// Marks a row in bold letters, with `text` in its tool tip and its description for screen readers; an empty text
  /// takes the mark away.
  void setSaved(int row, const QString& text);
  /// Number of the selected row, -1 without one.
  using RowPicking::selectedRow;
  /// Selects the row as code would: fires nothing. -1 selects nothing.
  void selectRow(int row) { select(row); }
  /// Tells of which rows a digit opens the editor. Of others, and without this, digits search as letters do.
  void setTakesDigits(std::function<bool(int row)> takesDigits) { takesDigits_ = std::move(takesDigits); }

 Q_SIGNALS:
  /// A click on a row, also on the selected one, or a change of row by the keyboard; neither code nor focus.
  void ItemClick(int row);
  /// Behind the ItemClick: the user wants to go into the editor of the row, by Enter, F2, a double click or a digit,
  /// which is then the first one `typed` there.
  void opened(int row, const QString& typed);
  /// The user has asked for the menu of a row, by the mouse or the keyboard.
  void menuAsked(int row, const QPoint& place);

 protected:
  void picked(int row) override;
  void menuWanted(int row, const QPoint& place) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int gain() const { return std::max(0, width() - widthAsTold_); }

  std::function<bool(int row)> takesDigits_;
  int widthAsTold_ = 0;  ///< width of the list when its columns were set
  int given_ = 0;        ///< pixels that the last column has been widened by since then
};

}  // namespace controls
