#pragma once

#include <QLabel>

#include "support/windows.h"

namespace support {

/// What the windows show: names and values.
using Shown = std::vector<std::pair<QString, QString>>;

/// The marks of a row beside its text: "bold, grey, tip '...', told '...'".
inline QString marksOf(const QFont& font, const QVariant& foreground, const QString& tip, const QString& told) {
  QStringList marks;
  if (font.bold()) marks += u"bold"_s;
  if (foreground.isValid()) marks += u"grey"_s;
  if (!tip.isEmpty()) marks += u"tip '%1'"_s.arg(tip);
  if (!told.isEmpty() && told != tip) marks += u"told '%1'"_s.arg(told);
  return QString(marks.join(u", ")).replace(u'\n', u'|');
}

/// The sum of a picture's pixels.
inline QString sumOf(const QImage& picture) {
  const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
  return u"%1"_s.arg(qChecksum(QByteArrayView(pixels.constBits(), pixels.sizeInBytes())), 4, 16, QChar(u'0'));
}

inline void addControl(Shown& all, const QWidget& control, const QString& name) {
  const QString state = control.isEnabled() ? QString() : u" (disabled)"_s;
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
    QStringList entries;
    for (int i = 0; i < combo->count(); ++i) {
      const QIcon square = combo->itemIcon(i);
      entries += combo->itemText(i);
      if (!square.isNull()) entries.last() += u' ' + square.pixmap(11, 11).toImage().pixelColor(5, 5).name();
    }
    all.emplace_back(name + u" entries"_s, entries.join(u','));
    all.emplace_back(name, combo->currentText() + state);
  } else if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
    QStringList rows;
    for (int i = 0; i < list->count(); ++i) {
      const QListWidgetItem& row = *list->item(i);
      rows += row.text();
      const QIcon picture = row.icon();
      if (!picture.isNull()) rows.last() += u' ' + sumOf(picture.pixmap(list->iconSize()).toImage());
      const QString marks = marksOf(row.font(), row.data(Qt::ForegroundRole), row.toolTip(),
                                    row.data(Qt::AccessibleDescriptionRole).toString());
      if (!marks.isEmpty()) all.emplace_back(name + u' ' + row.text(), marks);
    }
    const auto selected = list->selectedItems();
    all.emplace_back(name + u" rows"_s, rows.join(u','));
    all.emplace_back(name, (selected.isEmpty() ? u"none"_s : selected.first()->text()) + state);
  } else if (const auto* grid = qobject_cast<const QTreeWidget*>(&control)) {
    for (int i = 0; i < grid->topLevelItemCount(); ++i) {
      const QTreeWidgetItem& row = *grid->topLevelItem(i);
      const QString marks =
          marksOf(row.font(1), {}, row.toolTip(0), row.data(0, Qt::AccessibleDescriptionRole).toString());
      all.emplace_back(name + u' ' + row.text(0), row.text(1) + (marks.isEmpty() ? QString() : u"   "_s + marks));
    }
    const auto selected = grid->selectedItems();
    all.emplace_back(name, (selected.isEmpty() ? u"none"_s : selected.first()->text(0)) + state);
  } else if (const auto* bar = qobject_cast<const controls::NumberBar*>(&control)) {
    all.emplace_back(name, QString::number(bar->Value()) + state);
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) {
    all.emplace_back(
        name, edit->text() + (edit->hasSelectedText() ? u" ['%1']"_s.arg(edit->selectedText()) : QString()) + state);
  } else if (const auto* swatch = qobject_cast<const controls::SwatchButton*>(&control)) {
    all.emplace_back(name, swatch->BackColor().name() + state);
  } else if (const auto* label = qobject_cast<const QLabel*>(&control); label && !label->pixmap().isNull()) {
    all.emplace_back(name, sumOf(label->pixmap().toImage()));
  } else {
    all.emplace_back(name, state.isEmpty() ? u"shown"_s : state);
  }
}

/// What the windows show, by the names of the controls.
inline Shown shownNow(const Program& program) {
  Shown all;
  QWidgetList windows = QApplication::topLevelWidgets();
  std::sort(windows.begin(), windows.end(),
            [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
  for (QWidget* window : windows) {
    if (!window->isVisible() || window->windowType() == Qt::ToolTip || window->objectName().startsWith(u"qt_"))
      continue;
    const QString name = window->objectName().isEmpty() ? u"window"_s : window->objectName();
    all.emplace_back(name, window->windowTitle());
    const QString tells = window->accessibleDescription();
    if (!tells.isEmpty()) all.emplace_back(name + u" tells"_s, tells);
    if (name == u"Loupe"_s) all.emplace_back(u"magnified"_s, sumOf(window->grab({0, 0, 208, 208}).toImage()));
    const QWidget* focus = window->focusWidget();
    all.emplace_back(name + u" focus"_s, focus == nullptr ? u"none"_s : focus->objectName());
    for (const QWidget* control : window->findChildren<QWidget*>()) {
      const QString& own = control->objectName();
      if (control->window() != window || !control->isVisible() || own.isEmpty() || own.startsWith(u"qt_")) continue;
      addControl(all, *control, name + u'.' + own);
    }
  }
  const mainwindows::Form1& form = program.form;
  const mainwindows::Workspace& preview = *form.Workspace;
  const QRectF mark = preview.mark();
  all.emplace_back(u"status"_s, program.status());
  all.emplace_back(u"pointer"_s, form.StatusBar->panel(2));
  all.emplace_back(u"toolbar"_s, program.buttons());
  all.emplace_back(u"mark"_s, preview.markVisible()
                                  ? u"%1,%2 %3x%4"_s.arg(mark.x()).arg(mark.y()).arg(mark.width()).arg(mark.height()) +
                                        (preview.blinking() ? u""_s : u" still"_s)
                                  : u"none"_s);
  all.emplace_back(u"label"_s, preview.accessibleDescription());
  return all;
}

}  // namespace support
