#include "controls/row_picking.h"

#include <algorithm>

#include <QToolTip>

#include "controls/look.h"
#include "controls/shown_text.h"

namespace controls {

std::optional<int> rowForKey(int key, int selected, int rows, int page) {
  const struct {
    int key;
    int target;
  } moves[] = {
      {Qt::Key_Up, selected - 1},
      {Qt::Key_Down, selected + 1},
      {Qt::Key_PageUp, selected - page},
      {Qt::Key_PageDown, selected + page},
      {Qt::Key_Home, 0},
      {Qt::Key_End, rows - 1},
  };
  if (rows == 0) return std::nullopt;
  for (const auto& move : moves) {
    if (move.key == key) return std::clamp(move.target, 0, rows - 1);
  }
  return std::nullopt;
}

void showCellTip(const QAbstractItemView& view, const QHelpEvent& help) {
  const QModelIndex cell = view.indexAt(help.pos());
  const QRect shown = view.visualRect(cell).intersected(view.viewport()->rect());
  QStringList lines;
  if (view.sizeHintForIndex(cell).width() > shown.width()) lines += shownText(cell.data().toString());
  lines += shownText(cell.data(Qt::ToolTipRole).toString());
  lines.removeAll(QString());
  QToolTip::showText(help.globalPos(), plainToolTip(lines.join(u'\n')), view.viewport(), shown);
}

}  // namespace controls
