#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>

#include "endurance/monkey.h"
#include "mainwindows/commands.h"
#include "platform/paths.h"
#include "toolwindow/list_window.h"

namespace endurance {

void Monkey::act() {
  form().ShowStatus(QString());
  form().config().setGameFolder(game_.path());  // another one may have been opened
  toolwindow::Form2* const tools = form().toolWindow();
  if (tools == nullptr && !chance_.one(6)) {
    click(*form().ToolBar, {16, 16});
  } else if (chance_.one(70)) {
    const std::array actions{&Monkey::shortcut,     &Monkey::resize,     &Monkey::protectFiles,
                             &Monkey::protectFiles, &Monkey::loseFolder, &Monkey::review};
    (this->*chance_.of(actions))();
  } else if (chance_.one(900)) {
    form().close();
  } else if (tools != nullptr && chance_.one(12)) {
    gesture();
  } else if (tools != nullptr && chance_.one(80)) {
    command();
  } else if (tools == nullptr || chance_.one(50)) {
    touch(form());
  } else if (chance_.one(4) || tools->objects().ListIndex() < 0) {
    touch(*tools, Qt::FindDirectChildrenOnly);
  } else {
    touch(*support::named<QWidget>(*tools, "Frame1"));
  }
  readStatus();
}

/// The dialog of Open is up: one thing in it.
void Monkey::answerOpenDialog() {
  auto* dialog = qobject_cast<mainwindows::Form3*>(QApplication::activeModalWidget());
  if (dialog == nullptr) return;
  if (chance_.one(200)) return static_cast<void>(form().close());
  if (chance_.one(3)) {
    key(*dialog, chance_.one(9) ? Qt::Key_Escape : Qt::Key_Return);
  } else {
    touch(*dialog);
  }
  if (dialog->isVisible()) return;
  ++counts_[dialog->result() == QDialog::Accepted ? u"open"_s : u"cancel"_s];
  readStatus();
}

/// Something with one of the controls on show, once or again and again.
void Monkey::touch(QWidget& area, Qt::FindChildOptions depth) {
  QWidgetList controls;
  for (QWidget* widget : area.findChildren<QWidget*>(depth)) {
    if (!widget->isVisible() || !widget->isEnabled() || widget->window() != area.window()) continue;
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 || widget == form().Workspace) controls += widget;
  }
  if (controls.isEmpty()) return;
  const QPointer<QWidget> control = chance_.of(controls);
  for (int times = chance_.one(10) ? 6 : 1; times > 0 && control && control->isVisible(); --times) use(*control);
}

void Monkey::use(QWidget& control) {
  if (auto* list = qobject_cast<controls::ComboBox*>(&control)) return choose(*list);
  if (auto* list = qobject_cast<QAbstractItemView*>(&control)) return pick(*list);
  if (auto* box = qobject_cast<QLineEdit*>(&control)) return type(*box);
  const int width = &control == form().ToolBar ? 4 * 32 : control.width();
  click(control, {chance_.below(width), chance_.below(control.height())});
}

/// A choice by the keyboard, or out of the opened list.
void Monkey::choose(controls::ComboBox& list) {
  constexpr std::array Keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_Home, Qt::Key_Home, Qt::Key_End, Qt::Key_M};
  if (!chance_.one(6)) return key(list, chance_.of(Keys));
  click(list, list.rect().center());
  for (int i = chance_.below(6); i > 0; --i) key(*list.view(), Qt::Key_Down);
  key(*list.view(), chance_.one(4) ? Qt::Key_Escape : Qt::Key_Return);
  list.hidePopup();
}

/// A click on a row, or a key.
void Monkey::pick(QAbstractItemView& list) {
  constexpr std::array Keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                            Qt::Key_S,    Qt::Key_T,  Qt::Key_4,        Qt::Key_F2,   Qt::Key_Return};
  const int rows = list.model()->rowCount();
  if (rows == 0 || chance_.one(5)) {
    key(list, chance_.of(Keys));
  } else {
    const QModelIndex index = list.model()->index(chance_.below(rows), 0);
    list.scrollTo(index);
    click(*list.viewport(), list.visualRect(index).center());
  }
  if (form().toolWindow() == nullptr || &list != &form().toolWindow()->values()) return;
  for (const QWidget* frame :
       support::named<QWidget>(*form().toolWindow(), "Frame1")->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (frame->isVisible()) ++counts_[frame->objectName()];
  }
}

/// Mostly letters outside the code page, which only the editor of words takes.
void Monkey::type(QLineEdit& box) {
  static const QStringList texts{u"12\r\n34"_s, u"\" a ; b "_s, QString(400, u'x')};
  if (chance_.one(2)) key(box, Qt::Key_A, Qt::ControlModifier);
  if (chance_.one(6)) {
    for (const char letter : {'7', '.', '-', '=', ';', ' '}) {
      if (chance_.one(2)) key(box, letter);
    }
    if (chance_.one(4)) key(box, Qt::Key_Backspace);
  } else {
    QApplication::clipboard()->setText(chance_.one(4) ? chance_.of(texts) : u"a\u0416\u4e2d"_s);
    key(box, Qt::Key_V, Qt::ControlModifier);
  }
  if (!chance_.one(6)) key(box, Qt::Key_Return);
}

/// Arrow keys on the preview, or a drag; mostly with an object that is drawn.
void Monkey::gesture() {
  if (!chance_.one(4)) click(*form().Workspace, {chance_.below(800), chance_.below(600)});
  for (int more = chance_.one(3) ? chance_.below(4) : 0; more > 0; --more) {
    QTest::mouseClick(form().Workspace, Qt::LeftButton, Qt::ShiftModifier, {chance_.below(800), chance_.below(600)});
  }
  if (form().toolWindow() == nullptr) return;
  if (chance_.one(2)) {
    arrowKeys();
  } else {
    drag();
  }
  const QString status = form().StatusBar->panel(1);
  counts_[u"moved"_s] += status.contains(u": X = "_s) || status.contains(u": Y = "_s);
  counts_[u"sized"_s] += status.contains(u"W = "_s) || status.contains(u"H = "_s);
}

void Monkey::arrowKeys() {
  constexpr std::array Keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
  const auto with = chance_.of(std::array{Qt::ShiftModifier, Qt::NoModifier, Qt::ControlModifier, Qt::ControlModifier});
  for (int i = chance_.below(4); i >= 0; --i) key(*form().Workspace, chance_.of(Keys), with);
  if (chance_.one(6)) key(*form().Workspace, Qt::Key_Escape);
  if (!chance_.one(4)) form().session().settle();
}

/// A drag that ends in any way, or never.
void Monkey::drag() {
  mainwindows::Workspace& preview = *form().Workspace;
  const QRect mark = preview.markRect() & preview.rect();
  const std::array places{mark.center(), mark.bottomRight(), QPoint(chance_.below(800), chance_.below(600))};
  QPoint place = chance_.of(places);
  QTest::mousePress(&preview, Qt::LeftButton, {}, place);
  for (int i = chance_.below(4); i >= 0; --i) {
    ++events_;
    support::moveMouse(preview, place += QPoint(chance_.below(40) - 15, chance_.below(40) - 15));
    if (chance_.one(3)) QTest::qWait(20);
  }
  const std::array<std::function<void()>, 5> ends{[&] { key(preview, Qt::Key_Escape); },
                                                  [&] { QTest::mouseClick(&preview, Qt::RightButton, {}, place); },
                                                  [] { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); },
                                                  [this] { shortcut(); }, [this] { resize(); }};
  if (chance_.one(3)) {
    ++counts_[u"given up"_s];
    chance_.of(ends)();
  }
  if (!chance_.one(9)) QTest::mouseRelease(&preview, Qt::LeftButton, {}, place);
}

void Monkey::shortcut() {
  QWidget* window = &form();
  if (form().toolWindow() != nullptr && chance_.one(2)) window = form().toolWindow();
  key(*window, chance_.of(std::array{Qt::Key_O, Qt::Key_S, Qt::Key_S, Qt::Key_W}), Qt::ControlModifier);
}

/// The command that came least, out of the preview's menu with several objects, or by its keys.
void Monkey::command() {
  const auto came = [this](const mainwindows::CommandRow& row) { return counts_.value(commandName(row), INT_MAX); };
  const mainwindows::CommandRow& row = *std::ranges::min_element(mainwindows::commandRows(), {}, came);
  if (row.menu.isEmpty()) {
    ++counts_[commandName(row)];
    const QKeyCombination keys = QKeySequence(row.keys.toString())[0];
    return key(form(), keys.key(), keys.keyboardModifiers());
  }
  const controls::ListBox& objects = form().toolWindow()->objects();
  for (int more = chance_.below(5); more > 0 && objects.ListCount() > 0; --more) {
    form().session().toggleMember(objects.List(chance_.below(objects.ListCount())));
  }
  key(*form().Workspace, Qt::Key_F10, Qt::ShiftModifier);
  const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) return;
  for (QAction* entry : menu->findChildren<QAction*>()) {
    if (!entry->isEnabled() || entry->text().section(u'\t', 0, 0) != row.menu) continue;
    ++counts_[commandName(row)];
    entry->trigger();
    break;
  }
  if (menu) menu->close();
}

/// Something in the list of what differs, in that of what is wrong, and with the screen in each skin and language.
void Monkey::review() {
  if (form().toolWindow() == nullptr) return;
  if (chance_.one(4)) {
    key(form(), Qt::Key_B, Qt::ControlModifier);
    QTest::qWait(chance_.below(40));
    auto* pictures = form().findChild<QWidget*>(u"SideBySide"_s);
    if (pictures != nullptr && chance_.one(2)) key(*pictures, chance_.one(2) ? Qt::Key_Return : Qt::Key_Escape);
    return;
  }
  const bool changes = chance_.one(2);
  key(form(), changes ? Qt::Key_E : Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::qWait(20);
  if (form().toolWindow() == nullptr) return;
  auto* list = form().toolWindow()->findChild<toolwindow::ListWindow*>(changes ? u"Changes"_s : u"Faults"_s);
  if (list == nullptr) return;
  if (chance_.one(2)) key(*list->Line, chance_.of(std::array{Qt::Key_X, Qt::Key_T, Qt::Key_Backspace}));
  if (chance_.one(2)) key(*list->List, Qt::Key_A, Qt::ControlModifier);
  if (changes) counts_[u"put back"_s] += list->action()->isEnabled();
  if (changes && chance_.one(2)) return list->action()->click();
  key(*list->Line, chance_.one(2) ? Qt::Key_Return : Qt::Key_Escape);
}

void Monkey::resize() {
  QTest::qWait(chance_.below(4));
  if (form().toolWindow() == nullptr) return;
  form().toolWindow()->resize(60 + chance_.below(500), 60 + chance_.below(700));
  key(*form().toolWindow(), Qt::Key_Tab);
}

/// Files that can't be written: those of the game at Save, or working copies at Open and Update.
void Monkey::protectFiles() {
  QStringList names;
  for (const QString& name : expected_.keys()) {
    const QString copy = name + u".tmp"_s;
    if (name.endsWith(u".ini")) names += game_.has(copy) && chance_.one(2) ? copy : name;
  }
  for (const QString& name : names) game_.protect(name);
  if (form().toolWindow() != nullptr) touch(*form().toolWindow());
  click(*form().ToolBar, {chance_.one(2) ? 16 : 48, 16});
  for (const QString& name : names) game_.protect(name, false);
}

void Monkey::loseFolder() {
  form().config().setGameFolder(platform::programPath(noThemes_.path()) + u'\\');
  click(*form().ToolBar, {16, 16});
  form().config().setGameFolder(game_.path());
}

void Monkey::key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  ++events_;
  QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifiers);
}

void Monkey::click(QWidget& widget, const QPoint& place) {
  ++events_;
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

}  // namespace endurance
