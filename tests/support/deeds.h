#pragma once

#include <QMenu>

#include "support/windows.h"

namespace support {

/// What a user does in the program's windows, in words: "press Command1", "object LoadingStaticA".
class Deeds {
 public:
  Deeds(Program& program, const GameFolder& game) : program_(program), game_(game) {}

  /// Does it; false where what it takes isn't on show.
  bool run(const QString& deed) {
    for (const Kind& kind : Kinds) {
      const QRegularExpression words(QRegularExpression::anchoredPattern(QLatin1StringView(kind.words)));
      const auto match = words.match(deed);
      if (!match.hasMatch()) continue;
      QStringList groups;
      for (int group = 1; group <= words.captureCount(); ++group) groups += match.captured(group);
      return (this->*kind.act)(groups);
    }
    qFatal("nobody does %s", qPrintable(deed));
  }

  /// A control on show: of the tool window, or with the name of its window before it, "Form1.Combo1".
  template <typename Control = QWidget>
  Control* control(const QString& name) const {
    const QString window = name.contains(u'.') ? name.section(u'.', 0, 0) : u"Form2"_s;
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (!top->isVisible() || top->objectName() != window) continue;
      auto* found = top->findChild<Control*>(name.section(u'.', -1));
      if (found != nullptr && found->isVisible() && found->isEnabled()) return found;
    }
    return nullptr;
  }

  QStringList menu;  ///< the entries of the last menu, those in brackets that can't be taken

 private:
  using Words = QStringList;
  struct Kind {
    const char* words;  ///< a regular expression, whose groups are what the deed is done with
    bool (Deeds::*act)(const Words& words);
  };
  static const QList<Kind> Kinds;

  bool button(const Words& words) {
    static const QStringList Names{u"Open"_s, u"Save"_s, u"Close"_s, u"Background Color"_s};
    if (words[0] != u"Open"_s) return program_.click(static_cast<int>(Names.indexOf(words[0])) + 1), true;
    return program_.openDialog([](mainwindows::Form3& dialog) { dialog.openButton().click(); });
  }
  bool screen(const Words& words) { return program_.screen(words[0]), true; }
  bool object(const Words& words) {
    if (program_.tools().objects().findItems(words[0], Qt::MatchExactly).isEmpty()) return false;
    return program_.tag(words[0]), true;
  }
  bool soleRow(const Words& words) { return program_.soleRow(words[0], words[1]), true; }
  bool row(const Words& words) {
    if (program_.value(words[0]) == u"no row"_s) return false;
    return program_.row(words[0]), true;
  }
  bool become(const Words& words) {
    auto* box = control<controls::TextBox>(words[0]);
    auto* bar = control<controls::NumberBar>(words[0]);
    if (box != nullptr) box->SetText(words[1]);
    if (bar != nullptr) bar->SetValue(words[1].toInt());
    return box != nullptr || bar != nullptr;
  }
  bool leaveAt(const Words& words) {
    program_.tools().findChild<controls::NumberBar*>(words[0])->setValueQuietly(words[1].toInt());
    return true;
  }
  bool chooseNothing(const Words& words) {
    if (words[0] == u"row"_s) return program_.tools().values().selectRow(-1), true;
    return program_.tools().objects().SetListIndex(-1), true;
  }
  /// Real keys, over what the box holds.
  bool type(const Words& words) {
    auto* box = control<QLineEdit>(words[1]);
    if (box == nullptr) return false;
    box->setFocus();
    box->selectAll();
    return QTest::keyClicks(box, words[0]), true;
  }
  bool press(const Words& words) {
    auto* button = control<QAbstractButton>(words[0]);
    if (button != nullptr) button->click();
    return button != nullptr;
  }
  bool choose(const Words& words) {
    auto* list = control<controls::ComboBox>(words[0]);
    const int entry = words[1].toInt();
    if (list == nullptr || entry >= list->count()) return false;
    list->setCurrentIndex(entry);
    Q_EMIT list->Click(controls::Cause::User);
    return true;
  }
  bool keys(const Words& words) {
    QWidget* widget = control(words[0]);
    if (widget == nullptr) return false;
    widget->setFocus();
    for (const QString& word : words[1].split(u' ')) {
      const QKeyCombination key = QKeySequence(word)[0];
      QTest::keyClick(widget, key.key(), key.keyboardModifiers());
    }
    program_.form.session().settle();
    return true;
  }
  bool point(const Words& words) {
    QWidget& preview = *program_.form.Workspace;
    const QPointF at(words[0].toDouble(), words[1].toDouble());
    QMouseEvent moved(QEvent::MouseMove, at, preview.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&preview, &moved);
    return takeMouseAway(preview), true;
  }
  /// Waits for the check of the theme, which goes on while the program is idle.
  bool waitForCheck(const Words& /*words*/) {
    return QTest::qWaitFor([this] {
      const QWidgetList windows = QApplication::topLevelWidgets();
      return !program_.status().contains(u"being checked") &&
             std::none_of(windows.begin(), windows.end(), [](const QWidget* window) {
               return window->isVisible() && window->windowTitle().contains(u"being checked");
             });
    });
  }
  bool doubleClick(const Words& words) {
    QTest::mouseDClick(program_.form.Workspace, Qt::LeftButton, {}, QPoint(words[0].toInt(), words[1].toInt()));
    return takeMouseAway(*program_.form.Workspace), true;
  }
  bool click(const Words& words) { return drag({words[0], words[1], u"0"_s, u"0"_s, words[2]}); }
  bool drag(const Words& words) {
    QWidget& preview = *program_.form.Workspace;
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, words[4].contains(u"Shift"));
    held.setFlag(Qt::ControlModifier, words[4].contains(u"Ctrl"));
    const QPoint from(words[0].toInt(), words[1].toInt()), by(words[2].toInt(), words[3].toInt());
    QTest::mousePress(&preview, Qt::LeftButton, held, from);
    if (!by.isNull()) moveMouse(preview, from + by / 2, Qt::LeftButton, held);
    if (!by.isNull()) moveMouse(preview, from + by, Qt::LeftButton, held);
    QTest::mouseRelease(&preview, Qt::LeftButton, held, from + by);
    return takeMouseAway(preview), true;
  }
  /// The menu of a control, where the mouse is over what is chosen in it, and an entry of it by its number or words.
  bool menuOf(const Words& words) {
    QWidget* widget = control(words[0]);
    if (widget == nullptr) return false;
    QPoint at = widget->rect().center();
    if (auto* list = qobject_cast<QAbstractItemView*>(widget)) {
      at = list->visualRect(list->currentIndex()).center();
      widget = list->viewport();
    } else if (widget == program_.form.Workspace && program_.form.Workspace->markVisible()) {
      at = program_.form.Workspace->markRect().center();
    }
    return menuAt(*widget, at, words[1]);
  }
  bool menuOfRow(const Words& words) {
    auto& grid = program_.tools().values();
    const auto rows = grid.findItems(words[0], Qt::MatchExactly);
    return !rows.isEmpty() && menuAt(*grid.viewport(), grid.visualItemRect(rows.first()).center(), words[1]);
  }
  bool menuAt(QWidget& widget, const QPoint& place, const QString& entry) {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &asked);
    auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (shown == nullptr) return false;
    bool isNumber = false;
    QAction* taken = shown->actions().value(entry.toInt(&isNumber));
    if (!isNumber) taken = nullptr;
    QList<QAction*> entries = shown->actions();
    for (const QAction* action : shown->actions()) {
      menu += wordsOf(*action);
      if (action->menu() != nullptr && action->isEnabled()) entries += action->menu()->actions();
    }
    for (QAction* action : entries) {
      if (action->isEnabled() && action->text().section(u'\t', 0, 0) == entry) taken = action;
    }
    shown->close();
    if (taken != nullptr) taken->trigger();
    return taken != nullptr || entry.isEmpty();
  }
  static QString wordsOf(const QAction& action) {
    if (action.isSeparator()) return u"-"_s;
    return (action.isEnabled() ? action.text() : u'(' + action.text() + u')') +
           (action.isChecked() ? u", on"_s : QString());
  }
  bool answer(const Words& words) {
    ScriptedDialogs& dialogs = program_.dialogs;
    if (words[0] == u"nothing"_s) dialogs.boxes = {}, dialogs.inputs = dialogs.files = {}, dialogs.colors = {};
    if (words[0] == u"nothing"_s) return true;
    dialogs.boxes = {words[0] == u"Yes"_s ? platform::BoxAnswer::Yes : platform::BoxAnswer::No};
    dialogs.inputs = {words[0]};
    dialogs.files = {game_.path() + u"Skins\\Alpha\\"_s + words[0]};
    dialogs.colors = {QColor(words[0])};
    return true;
  }
  bool add(const Words& words) { return game_.put(words[0], game_.get(words[0]) + "; by another hand\r\n"), true; }
  bool replace(const Words& words) {
    game_.put(words[2], game_.get(words[2]).replace(words[1].toLatin1(), words[0].toLatin1()));
    return true;
  }
  bool protect(const Words& words) { return game_.protect(words[0], words[1] == u"can't"_s), true; }

  Program& program_;
  const GameFolder& game_;
};

inline const QList<Deeds::Kind> Deeds::Kinds{
    {"toolbar (.*)", &Deeds::button},
    {"screen (.*)", &Deeds::screen},
    {"object (.*)", &Deeds::object},
    {"row (.*?)=(.*)", &Deeds::soleRow},
    {"row (.*)", &Deeds::row},
    {"(\\S*) becomes '(.*)'", &Deeds::become},
    {"(\\S*) is left at (.*)", &Deeds::leaveAt},
    {"no (row|object)", &Deeds::chooseNothing},
    {"'(.*)' is typed in (\\S*)", &Deeds::type},
    {"press (\\S*)", &Deeds::press},
    {"(\\S*) becomes entry (.*)", &Deeds::choose},
    {"(\\S*) gets (.*)", &Deeds::keys},
    {"point at (.*),(.*)", &Deeds::point},
    {"the check ends", &Deeds::waitForCheck},
    {"double click at (.*),(.*)", &Deeds::doubleClick},
    {"click at (.*),(\\S*)(.*)", &Deeds::click},
    {"drag from (.*),(.*) by (.*),(\\S*)(.*)", &Deeds::drag},
    {"menu of row (.*?)(?:, entry (.*))?", &Deeds::menuOfRow},
    {"menu of (\\S*?)(?:, entry (.*))?", &Deeds::menuOf},
    {"dialogs are answered by (.*)", &Deeds::answer},
    {"another program adds to (.*)", &Deeds::add},
    {"another program writes (.*) for (.*) in (.*)", &Deeds::replace},
    {"(.*) (can|can't) be written", &Deeds::protect},
};

}  // namespace support
