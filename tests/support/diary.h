#pragma once

#include <QAccessible>
#include <QMenu>

#include "platform/code_page.h"
#include "platform/file_identity.h"
#include "support/windows.h"

namespace support {

/// The marks of a row beside its text: "bold, grey, tip '...', told '...'".
inline QString marksOf(const QFont& font, const QVariant& foreground, const QString& tip, const QString& told) {
  QStringList marks;
  if (font.bold()) marks += u"bold"_s;
  if (foreground.isValid()) marks += u"grey"_s;
  if (!tip.isEmpty()) marks += u"tip '%1'"_s.arg(tip);
  if (!told.isEmpty() && told != tip) marks += u"told '%1'"_s.arg(told);
  return QString(marks.join(u", ")).replace(u'\n', u'|');
}

/// A session, written down: what each step has changed of what a user has of the program and of the game's files. A
/// picture is told by the sum of its pixels.
class Diary {
 public:
  Diary(Program& program, const GameFolder& game) : program_(program), game_(game) {
    program.form.ProgressBar1->installEventFilter(&drawings_);
    tellShown();
    tellFiles();
    lines.clear();
  }

  QStringList lines;

  /// Runs a step, and writes down what is different behind it.
  void step(const QString& what, const std::function<void()>& act) {
    const qsizetype asked = program_.dialogs.asked.size();
    drawings_.count = 0;
    lines += QStringList{u""_s, u"> "_s + what};
    act();
    settle();
    for (Shown before; before != now();) {  // what comes in idle time
      before = now();
      settle();
    }
    for (const QString& dialog : program_.dialogs.asked.sliced(asked)) lines += u"asked: "_s + dialog;
    if (drawings_.count > 0) lines += u"drawn: %1"_s.arg(drawings_.count);
    tellShown();
    tellFiles();
    lines.replaceInStrings(game_.path(), u"GAME\\"_s).replaceInStrings(u"\n"_s, u"|"_s);
  }

  void tag(const QString& name) {
    step(u"object "_s + name, [&] { program_.tag(name); });
  }
  void row(const QString& key) {
    step(u"row "_s + key, [&] { program_.row(key); });
  }
  /// A grid of this one row, and a click on it.
  void soleRow(const QString& key, const QString& value) {
    step(u"row %1=%2"_s.arg(key, value), [&] { program_.soleRow(key, value); });
  }
  void screen(const QString& name) {
    step(u"screen "_s + name, [&] { program_.screen(name); });
  }
  void type(const char* box, const QString& text) {
    step(u"%1 becomes '%2'"_s.arg(QLatin1StringView(box), text), [&] { find<controls::TextBox>(box).SetText(text); });
  }
  void press(const char* button) {
    step(u"press "_s + QLatin1StringView(button), [&] { find<QPushButton>(button).click(); });
  }
  /// An entry of a list of the tool window, as the user chooses it.
  void choose(const char* list, int entry) {
    step(u"%1 becomes entry %2"_s.arg(QLatin1StringView(list)).arg(entry), [&] {
      auto& combo = find<controls::ComboBox>(list);
      combo.setCurrentIndex(entry);
      Q_EMIT combo.Click(controls::Cause::User);
    });
  }
  void tool(int button) {
    constexpr const char* Names[] = {"Open", "Save", "Close", "Background Color"};
    step(u"toolbar "_s + QLatin1StringView(Names[button - 1]), [&] { program_.click(button); });
  }
  /// The menu of a widget: tells its entries, those in brackets that can't be taken, and takes one of them.
  void menu(const QString& of, QWidget& widget, const QPoint& place, int entry = -1) {
    step(u"menu of %1"_s.arg(of) + (entry < 0 ? QString() : u", entry %1"_s.arg(entry)), [&] {
      QContextMenuEvent asked(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
      QApplication::sendEvent(&widget, &asked);
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* action : menu->actions()) {
        lines += u"entry: "_s + (action->isSeparator() ? u"-"_s
                                 : action->isEnabled() ? action->text()
                                                       : u'(' + action->text() + u')');
      }
      QAction* const taken = menu->actions().value(entry);
      menu->close();
      if (taken != nullptr) taken->trigger();
    });
  }
  void menuOfRow(const QString& key, int entry = -1) {
    auto& grid = find<QTreeWidget>("ListView1");
    const auto rows = grid.findItems(key, Qt::MatchExactly);
    if (rows.isEmpty()) qFatal("no row %s", qPrintable(key));
    menu(u"row "_s + key, *grid.viewport(), grid.visualItemRect(rows.first()).center(), entry);
  }
  /// A control of the tool window.
  template <typename Control>
  Control& find(const char* name) const {
    auto* control = program_.tools().findChild<Control*>(QLatin1StringView(name));
    if (control == nullptr) qFatal("no control %s", name);
    return *control;
  }

 private:
  using Shown = std::vector<std::pair<QString, QString>>;

  struct Drawings : QObject {
    bool eventFilter(QObject* /*bar*/, QEvent* event) override {
      count += event->type() == QEvent::Show;
      return false;
    }
    int count = 0;
  };

  /// What the windows show, by the names of the controls.
  Shown now() const {
    Shown all;
    QWidgetList windows = QApplication::topLevelWidgets();
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
    for (const QWidget* window : windows) {
      if (!window->isVisible() || window->windowType() == Qt::ToolTip || window->objectName().startsWith(u"qt_"))
        continue;
      const QString name = window->objectName().isEmpty() ? u"window"_s : window->objectName();
      all.emplace_back(name, window->windowTitle());
      const QWidget* focus = window->focusWidget();
      all.emplace_back(name + u" focus"_s, focus == nullptr ? u"none"_s : focus->objectName());
      for (const QWidget* control : window->findChildren<QWidget*>()) {
        const QString& own = control->objectName();
        if (control->window() != window || !control->isVisible() || own.isEmpty() || own.startsWith(u"qt_")) continue;
        addControl(all, *control, name + u'.' + own);
      }
    }
    const mainwindows::Form1& form = program_.form;
    const mainwindows::Workspace& preview = *form.Workspace;
    const QRectF mark = preview.mark();
    all.emplace_back(u"status"_s, program_.status());
    all.emplace_back(u"toolbar"_s, program_.buttons());
    all.emplace_back(u"mark"_s,
                     preview.markVisible()
                         ? u"%1,%2 %3x%4"_s.arg(mark.x()).arg(mark.y()).arg(mark.width()).arg(mark.height()) +
                               (preview.blinking() ? u""_s : u" still"_s)
                         : u"none"_s);
    all.emplace_back(u"label"_s, preview.accessibleDescription());
    return all;
  }

  static void addControl(Shown& all, const QWidget& control, const QString& name) {
    const QString state = control.isEnabled() ? QString() : u" (disabled)"_s;
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
      QStringList entries;
      for (int i = 0; i < combo->count(); ++i) entries += combo->itemText(i);
      all.emplace_back(name + u" entries"_s, entries.join(u','));
      all.emplace_back(name, combo->currentText() + state);
    } else if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
      QStringList rows;
      for (int i = 0; i < list->count(); ++i) {
        const QListWidgetItem& row = *list->item(i);
        rows += row.text();
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
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) {
      all.emplace_back(
          name, edit->text() + (edit->hasSelectedText() ? u" ['%1']"_s.arg(edit->selectedText()) : QString()) + state);
    } else if (const auto* swatch = qobject_cast<const controls::SwatchButton*>(&control)) {
      all.emplace_back(name, swatch->BackColor().name() + state);
    } else {
      all.emplace_back(name, state.isEmpty() ? u"shown"_s : state);
    }
  }

  void tellShown() {
    Shown after = now();
    for (const auto& line : after) {
      if (std::find(shown_.begin(), shown_.end(), line) == shown_.end()) lines += line.first + u": "_s + line.second;
    }
    QStringList gone;
    for (const auto& before : shown_) {
      const QString& name = before.first;
      const bool stands = std::any_of(after.begin(), after.end(), [&](const auto& line) { return line.first == name; });
      if (!stands) gone += name;
    }
    if (!gone.isEmpty()) lines += u"no more: "_s + gone.join(u", "_s);
    shown_ = std::move(after);
    const QImage& picture = program_.picture();
    const QByteArrayView pixels(picture.constBits(), picture.sizeInBytes());
    if (const quint16 sum = qChecksum(pixels); sum != std::exchange(picture_, sum)) {
      lines += u"picture: %1"_s.arg(sum, 4, 16, QChar(u'0'));
    }
  }

  /// The lines that are gone ("-") and new ("+"), in their order: what is in the longest common sequence stays.
  static QStringList changedLines(const QByteArrayList& from, const QByteArrayList& to) {
    const auto line = [](const QByteArray& bytes) { return platform::fromAnsi(bytes).remove(u'\r'); };
    std::vector<std::vector<int>> common(from.size() + 1, std::vector<int>(to.size() + 1));
    for (qsizetype i = from.size() - 1; i >= 0; --i) {
      for (qsizetype j = to.size() - 1; j >= 0; --j) {
        common[i][j] = from[i] == to[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
      }
    }
    QStringList changed;
    for (qsizetype i = 0, j = 0; i < from.size() || j < to.size();) {
      if (i < from.size() && j < to.size() && from[i] == to[j]) {
        ++i, ++j;
      } else if (j == to.size() || (i < from.size() && common[i + 1][j] >= common[i][j + 1])) {
        changed += u'-' + line(from[i++]);
      } else {
        changed += u'+' + QString::number(j + 1) + u' ' + line(to[j]);
        ++j;
      }
    }
    return changed;
  }

  /// Of each file the lines that are gone and those that are new, or that it was written anew as it was.
  void tellFiles() {
    QMap<QString, Written> after;
    const auto files = game_.files();
    for (const auto& [name, bytes] : files.asKeyValueRange()) {
      const auto identity = platform::identityOf(game_.path() + name);
      after[name] = {bytes.split('\n'), identity ? identity->number : 0};
      if (!written_.isEmpty() && !written_.contains(name)) lines += u"file %1: new"_s.arg(name);
      if (!written_.contains(name)) continue;
      const QStringList changed = changedLines(written_[name].lines, after[name].lines);
      for (const QString& line : changed) lines += u"file %1: %2"_s.arg(name, line);
      if (changed.isEmpty() && written_[name].number != after[name].number)
        lines += u"file %1: written anew"_s.arg(name);
    }
    for (const QString& name : written_.keys()) {
      if (!after.contains(name)) lines += u"file %1: no more"_s.arg(name);
    }
    written_ = std::move(after);
  }

  struct Written {
    QByteArrayList lines;
    quint64 number = 0;  ///< another one when the file was replaced
  };

  Program& program_;
  const GameFolder& game_;
  Drawings drawings_;
  Shown shown_;
  quint16 picture_ = 0;
  QMap<QString, Written> written_;
};

}  // namespace support
