#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "endurance/monkey.h"
#include "platform/paths.h"
#include "toolwindow/key_table.h"

namespace endurance {
namespace {

const QStringList& texts() {
  static const QStringList all{u"12\r\n34"_s, u"\u0416"_s,        u"\u4e2d"_s,       u"0.5.5"_s,
                               u"-40"_s,      u"99999"_s,         u"\u0416\u0430"_s, u"\" a ; b "_s,
                               u"[Colors]"_s, QString(400, u'x'), u"a\0b"_s,         u"plate.png"_s};
  return all;
}

}  // namespace

bool Monkey::usable(const QWidget* widget) const {
  return widget->isVisible() && widget->isEnabled();
}

void Monkey::act() {
  static constexpr std::array<Action, 16> Actions{{{10, &Monkey::toolBar},
                                                   {3, &Monkey::shortcut},
                                                   {12, &Monkey::screen},
                                                   {24, &Monkey::tag},
                                                   {40, &Monkey::gridRow},
                                                   {10, &Monkey::enter},
                                                   {20, &Monkey::type},
                                                   {20, &Monkey::update},
                                                   {40, &Monkey::colours},
                                                   {40, &Monkey::keys},
                                                   {8, &Monkey::mainLists},
                                                   {10, &Monkey::preview},
                                                   {8, &Monkey::shapes},
                                                   {4, &Monkey::protectFiles},
                                                   {2, &Monkey::loseFolder},
                                                   {2, &Monkey::endProgram}}};
  int total = 0;
  for (const Action& action : Actions) total += action.weight;
  int pick = chance_.below(total);
  const Action* action = Actions.data();
  for (; pick >= action->weight; ++action) pick -= action->weight;
  form_->ShowStatus(QString());
  if (state_.ThemeOpened || chance_.one(6)) {
    (this->*action->run)();
  } else {
    click(*form_->ToolBar, QPoint(16, 16));
  }
  readStatus();
}

void Monkey::key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  ++events_;
  QTest::keyClick(&widget, static_cast<Qt::Key>(key), modifiers);
}

void Monkey::click(QWidget& widget, const QPoint& place) {
  ++events_;
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

void Monkey::press(QWidget* button) {
  if (usable(button)) click(*button, button->rect().center());
}

/// A choice by the keyboard, or out of the opened list.
void Monkey::choose(controls::ComboBox& list) {
  if (!usable(&list) || list.ListCount() == 0) return;
  if (chance_.one(6)) {
    click(list, list.rect().center());
    for (int i = chance_.below(6); i > 0; --i) key(*list.view(), Qt::Key_Down);
    key(*list.view(), chance_.one(4) ? Qt::Key_Escape : Qt::Key_Return);
    list.hidePopup();
    return;
  }
  constexpr std::array Keys{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_M, Qt::Key_S};
  key(list, chance_.of(Keys));
}

void Monkey::listKey(QAbstractItemView& list) {
  constexpr std::array Keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Home,
                            Qt::Key_End,  Qt::Key_S,  Qt::Key_T};
  if (usable(&list)) key(list, chance_.of(Keys));
}

/// A click on a row, or a key.
void Monkey::row(QAbstractItemView& list, int row) {
  if (!usable(&list)) return;
  if (list.model()->rowCount() == 0 || chance_.one(5)) return listKey(list);
  const QModelIndex index = list.model()->index(row, 0);
  list.scrollTo(index);
  click(*list.viewport(), list.visualRect(index).center());
}

/// Clicks the row of a key of the group, on one of a few objects; false without one.
bool Monkey::seek(toolwindow::KeyGroup group) {
  for (int tries = 0; tries < 4; ++tries) {
    if (rowOf(group)) return form_->ToolWindow != nullptr;
    tag();
  }
  return false;
}

/// Clicks the row of the first key of the group, if there is one.
bool Monkey::rowOf(toolwindow::KeyGroup group) {
  if (form_->ToolWindow == nullptr) return false;
  controls::ListView& grid = *tools()->ListView1;
  for (int i = 0; i < grid.RowCount(); ++i) {
    if (toolwindow::GroupOf(toolwindow::KeyIdentity(grid.RowText(i))) != group) continue;
    row(grid, i);
    return true;
  }
  return false;
}

void Monkey::toolBar() {
  click(*form_->ToolBar, QPoint(32 * chance_.of(std::array{1, 2, 2, 2, 3, 4, 4}) - 16, 16));
}

void Monkey::shortcut() {
  QWidget* window = form_.get();
  if (form_->ToolWindow != nullptr && chance_.one(2)) window = form_->ToolWindow;
  key(*window, chance_.of(std::array{Qt::Key_O, Qt::Key_S, Qt::Key_S, Qt::Key_W}), Qt::ControlModifier);
}

/// The dialog of Open is up: one thing in it.
void Monkey::answerOpenDialog() {
  auto* dialog = qobject_cast<mainwindows::Form3*>(QApplication::activeModalWidget());
  if (dialog == nullptr) return;
  const int act = chance_.below(8);
  if (act == 0) listKey(*dialog->List1);
  // The second is crowded, the last one full of faults.
  if (act < 3) row(*dialog->List1, chance_.of(std::array{1, 1, 2, 4, 4}));
  if (act == 3) listKey(*dialog->List2);
  if (act == 3) choose(*dialog->Combo1);
  if (act == 4 && chance_.one(2)) key(*dialog, Qt::Key_Escape);
  if (act == 4 && dialog->isVisible() && chance_.one(2)) press(dialog->Command2);
  if (act == 4 && !dialog->isVisible()) ++counts_[u"cancel"_s];
  if (act == 5 && chance_.one(20)) form_->close();
  if (act > 5) {
    press(dialog->Command1);
    if (!dialog->isVisible()) ++counts_[u"open"_s];
    readStatus();
    form_->ShowStatus(QString());
  }
}

void Monkey::screen() {
  if (form_->ToolWindow == nullptr) return;
  controls::ComboBox& list = *tools()->Combo1;
  if (chance_.one(2)) {
    key(list, Qt::Key_Home);
    key(list, Qt::Key_Down);
  } else {
    choose(list);
  }
  // An editor that is open now has lost its object.
  if (form_->ToolWindow != nullptr && chance_.one(2)) update();
}

void Monkey::tag() {
  if (form_->ToolWindow == nullptr) return;
  controls::ListBox& list = *tools()->List1;
  const auto odd = list.findItems(chance_.one(2) ? u"]"_s : u"Font"_s, Qt::MatchContains);
  const bool takesOdd = !odd.isEmpty() && chance_.one(2);
  row(list, takesOdd ? list.row(odd.first()) : chance_.below(list.ListCount()));
  if (!takesOdd) return;
  rowOf(chance_.of(std::array{toolwindow::KeyGroup::WholeNumber, toolwindow::KeyGroup::Font}));
  update();
}

void Monkey::gridRow() {
  if (form_->ToolWindow == nullptr) return;
  toolwindow::Form2& form = *tools();
  if (!chance_.one(4) || !rowOf(chance_.of(std::array{toolwindow::KeyGroup::Font, toolwindow::KeyGroup::Alignment}))) {
    row(*form.ListView1, chance_.below(form.ListView1->RowCount()));
  }
  if (form_->ToolWindow == nullptr) return;
  for (QWidget* frame : {form.Numbers, form.FloatNumbers, form.Selection, form.Color, form.Texture, form.Texts}) {
    counts_[frame->objectName()] += frame->isVisible();
  }
  if (chance_.one(2)) choose(*form.Combo2);
  if (chance_.one(3)) press(form.VScroll1);
}

void Monkey::enter() {
  if (form_->ToolWindow == nullptr) return;
  for (QLineEdit* box : {tools()->Text1, tools()->Text4, tools()->Text2}) {
    if (usable(box)) return key(*box, Qt::Key_Return);
  }
  key(*tools(), Qt::Key_Return);
}

void Monkey::type() {
  if (form_->ToolWindow == nullptr) return;
  for (QLineEdit* box : {tools()->Text1, tools()->Text4, tools()->Text2}) {
    if (!usable(box)) continue;
    if (chance_.one(2)) key(*box, Qt::Key_A, Qt::ControlModifier);
    if (!chance_.one(3)) {
      QApplication::clipboard()->setText(chance_.of(texts()));
      key(*box, Qt::Key_V, Qt::ControlModifier);
    } else {
      for (const char letter : {'7', '.', '-', '=', ';', ' '}) {
        if (chance_.one(2)) key(*box, letter);
      }
      if (chance_.one(4)) key(*box, Qt::Key_Backspace);
    }
  }
}

void Monkey::update() {
  if (form_->ToolWindow != nullptr) press(tools()->Command1);
}

void Monkey::colours() {
  if (!seek(toolwindow::KeyGroup::Color)) return;
  toolwindow::Form2& form = *tools();
  if (chance_.one(4)) choose(*form.Combo4);
  if (chance_.one(3)) choose(*form.Combo3);
  const std::array<QWidget*, 5> buttons{form.Command2, form.Command3, form.Command3, form.Command5, form.Command1};
  QWidget* const button = chance_.of(buttons);
  for (int times = chance_.one(3) ? 8 : 1; times > 0; --times) press(button);
}

void Monkey::keys() {
  const bool text = chance_.one(2);
  if (!seek(text ? toolwindow::KeyGroup::Text : toolwindow::KeyGroup::Texture)) return;
  toolwindow::Form2& form = *tools();
  if (chance_.one(2)) choose(text ? *form.Combo5 : *form.Combo6);
  if (text && chance_.one(2)) {
    type();
    return update();
  }
  using Buttons = std::array<QWidget*, 4>;
  press(chance_.of(text ? Buttons{form.Command6, form.Command7, form.Command1, form.Command6}
                        : Buttons{form.Command8, form.Command9, form.Command1, form.Command4}));
}

void Monkey::mainLists() {
  choose(chance_.one(2) ? *form_->Combo1 : *form_->Combo2);
}

void Monkey::preview() {
  const QPoint place(chance_.below(800), chance_.below(600));
  QTest::mouseMove(form_->Workspace, place);
  click(*form_->Workspace, place);
}

void Monkey::shapes() {
  QTest::qWait(chance_.below(4));
  if (form_->ToolWindow == nullptr) return;
  ++events_;
  if (chance_.one(2)) tools()->resize(60 + chance_.below(500), 60 + chance_.below(700));
  key(*tools(), Qt::Key_Tab);
}

/// A file that can't be written: one of the game's at Save, or working copies at Open.
void Monkey::protectFiles() {
  QStringList names;
  for (const QString& name : expected_.keys()) {
    const QString copy = name + u".tmp"_s;
    if (name.endsWith(u".ini")) names += game_.has(copy) && chance_.one(2) ? copy : name;
  }
  for (const QString& name : names) game_.protect(name);
  if (chance_.one(2)) rowOf(toolwindow::KeyGroup::WholeNumber);
  update();
  click(*form_->ToolBar, QPoint(chance_.one(3) ? 16 : 48, 16));
  for (const QString& name : names) game_.protect(name, false);
}

void Monkey::loseFolder() {
  form_->Config.SetGameFolder(platform::ProgramPath(noThemes_.path()) + u'\\');
  click(*form_->ToolBar, QPoint(16, 16));
  form_->Config.SetGameFolder(game_.path());
}

void Monkey::endProgram() {
  form_->close();
}

}  // namespace endurance
