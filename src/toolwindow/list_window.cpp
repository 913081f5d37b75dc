#include "toolwindow/list_window.h"

#include <algorithm>
#include <utility>

#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/popup_menu.h"
#include "toolwindow/saved_menus.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr QSize Size(460, 320);

}  // namespace

ListWindow::ListWindow(Form2& form, ListSource* source)
    : ThemeWindow(form),
      Line(new controls::TextBox(this)),
      List(new controls::ListBox(controls::ListBox::Order::AsAdded, this)),
      form_(form),
      source_(*source) {
  source->setParent(this);
  const ListNames names = source->names();
  setObjectName(names.window);
  Line->setObjectName(QStringLiteral("Line"));
  Line->setAccessibleName(names.line);
  Line->setPlaceholderText(names.hint);
  List->setObjectName(QStringLiteral("List"));
  List->setAccessibleName(names.list);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Line);
  column->addWidget(List);
  if (!source->actionOn({}).isEmpty()) addAction();
  const QRect room = this->room();
  resize(Size.boundedTo(room.size()));
  const QPoint place = form.parentWidget()->geometry().center() - rect().center();
  const QPoint last = room.bottomRight() - rect().bottomRight();
  move(std::clamp(place.x(), room.left(), std::max(room.left(), last.x())),
       std::clamp(place.y(), room.top(), std::max(room.top(), last.y())));
  connect(Line, &controls::TextBox::Change, this, &ListWindow::search);
  connect(Line, &controls::TextBox::enter, this, &ListWindow::accept);
  connect(List, &QAbstractItemView::doubleClicked, this, &ListWindow::accept);
  connect(source, &ListSource::renewed, this, &ListWindow::renew);
}

/// The button and the menu for the chosen rows.
void ListWindow::addAction() {
  action_ = new QPushButton(this);
  action_->setObjectName(QStringLiteral("Action"));
  layout()->addWidget(action_);
  List->allowSeveral();
  openMenusByKeys(*this);
  connect(action_, &QPushButton::clicked, this, &ListWindow::act);
  connect(List, &QListWidget::itemSelectionChanged, this, &ListWindow::updateAction);
  connect(List, &controls::ListBox::menuAsked, this, [this](int, const QPoint& place) { showMenu(place); });
  updateAction();
}

void ListWindow::open() {
  source_.begin();
  bringUp();
  Line->setFocus();
  Line->selectAll();
  source_.keepsPlace() ? renew() : search();
}

/// What the user sees is what stands in the files now.
void ListWindow::search() {
  showRows(0);
}

/// Shows the rows, and chooses one; the last if there are fewer.
void ListWindow::showRows(int chosen) {
  const QStringList rows = source_.rows(Line->Text());
  List->Clear();
  for (const QString& row : rows) List->AddItem(row);
  setWindowTitle(source_.title());
  if (!rows.isEmpty()) List->SetListIndex(std::min(chosen, static_cast<int>(rows.size()) - 1));
  if (action_ != nullptr) updateAction();
}

/// Shows what has come in place of the rows. The chosen ones stay chosen as far as they are still there.
void ListWindow::renew() {
  if (!isVisible()) return;
  QStringList chosen;
  for (const int row : List->selectedRows()) chosen += List->List(row);
  showRows(std::max(0, List->ListIndex()));
  bool found = false;
  for (int row = 0; row < List->ListCount() && !chosen.isEmpty(); ++row) {
    if (!chosen.removeOne(List->List(row))) continue;
    std::exchange(found, true) ? List->selectToo(row) : List->SetListIndex(row);
  }
}

void ListWindow::accept() {
  const int row = List->ListIndex();
  const auto goal = row < 0 ? std::nullopt : source_.goalOf(row);
  if (!goal) return;
  hideFor(&form_);
  form_.goTo(*goal);
}

void ListWindow::act() {
  source_.actOn(List->selectedRows());
}

void ListWindow::showMenu(const QPoint& place) {
  auto* menu = new QMenu(this);
  QAction* action = menu->addAction(action_->text());
  action->setEnabled(action_->isEnabled());
  connect(action, &QAction::triggered, this, &ListWindow::act, Qt::QueuedConnection);
  const QAction* all = menu->addAction(QStringLiteral("Select all\tCtrl+A"));
  connect(all, &QAction::triggered, List, &QAbstractItemView::selectAll);
  controls::popUp(menu, place, action);
}

void ListWindow::updateAction() {
  const std::vector<int> rows = List->selectedRows();
  action_->setText(source_.actionOn(rows));
  action_->setEnabled(source_.canActOn(rows));
}

void ListWindow::keyPressEvent(QKeyEvent* event) {
  const int page = std::max(1, List->viewport()->height() / std::max(1, List->sizeHintForRow(0)));
  const bool extends = action_ != nullptr && event->modifiers().testFlag(Qt::ShiftModifier);
  if (event->key() == Qt::Key_Escape) return goBack();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (event->isAutoRepeat()) return;
    action_ != nullptr&& focusWidget() == action_ ? action_->click() : accept();
  } else if (const auto row = controls::rowForKey(event->key(), List->ListIndex(), List->ListCount(), page)) {
    extends ? List->selectToo(*row) : List->SetListIndex(*row);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void showListWindow(Form2& form, const QString& name, const std::function<ListSource*()>& source) {
  auto* window = form.findChild<ListWindow*>(name, Qt::FindDirectChildrenOnly);
  if (window == nullptr) window = new ListWindow(form, source());
  window->open();
}

}  // namespace toolwindow
