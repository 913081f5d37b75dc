#include "toolwindow/finder_window.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "editing/reports.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr int MostRows = 300;
constexpr QSize Size(460, 320);

QString titleOf(const themefiles::Hits& hits, bool asked) {
  const int shown = static_cast<int>(hits.first.size());
  if (!asked) return QStringLiteral("Find");
  return shown < hits.count ? QStringLiteral("Find: the first %1 of %2").arg(shown).arg(hits.count)
                            : QStringLiteral("Find: %1").arg(hits.count);
}

}  // namespace

FinderWindow::FinderWindow(Form2& form)
    : QWidget(&form, Qt::Tool),
      Line(new controls::TextBox(this)),
      List(new controls::ListBox(controls::ListBox::Order::AsAdded, this)),
      form_(form) {
  setObjectName(QStringLiteral("Finder"));
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  Line->setObjectName(QStringLiteral("Line"));
  Line->setAccessibleName(QStringLiteral("Find"));
  Line->setPlaceholderText(QStringLiteral("Screen, object, key, value or words"));
  List->setObjectName(QStringLiteral("List"));
  List->setAccessibleName(QStringLiteral("What was found"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(Line);
  column->addWidget(List);
  resize(Size);
  move(form.parentWidget()->geometry().center() - rect().center());
  connect(Line, &controls::TextBox::Change, this, &FinderWindow::search);
  connect(Line, &controls::TextBox::enter, this, &FinderWindow::accept);
  connect(List, &QAbstractItemView::doubleClicked, this, &FinderWindow::accept);
  form.installEventFilter(this);
}

void FinderWindow::open() {
  if (QApplication::activeWindow() != this) {
    window_ = QApplication::activeWindow();
    control_ = QApplication::focusWidget();
  }
  show();
  activateWindow();
  raise();
  Line->setFocus();
  Line->selectAll();
  search();
}

/// Reads the files each time: what the user sees is what stands in them now.
void FinderWindow::search() {
  themefiles::Hits hits;
  const bool asked = !Line->Text().trimmed().isEmpty();
  if (asked) {
    const editing::Session& session = form_.services.session;
    platform::guarded(session.status(), editing::FindStep.toString(),
                      [&] { hits = themefiles::ThemeSearch(session.state()).find(Line->Text(), MostRows); });
  }
  List->Clear();
  for (const themefiles::Hit& hit : hits.first) List->AddItem(hit.shown);
  setWindowTitle(titleOf(hits, asked));
  hits_ = std::move(hits.first);
  if (!hits_.empty()) List->SetListIndex(0);
}

void FinderWindow::accept() {
  const int row = List->ListIndex();
  if (row < 0) return;
  const themefiles::Hit hit = hits_.at(row);
  hideFor(&form_);
  form_.goTo(hit);
}

/// Gives the keyboard away before it goes: a window manager would give it to the main window.
void FinderWindow::hideFor(QWidget* window) {
  if (window != nullptr && window->isVisible()) window->activateWindow();
  hide();
}

void FinderWindow::goBack() {
  hideFor(window_);
  if (control_ != nullptr && control_->isVisible()) control_->setFocus();
}

void FinderWindow::keyPressEvent(QKeyEvent* event) {
  const int page = std::max(1, List->viewport()->height() / std::max(1, List->sizeHintForRow(0)));
  if (event->key() == Qt::Key_Escape) return goBack();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) accept();
  } else if (const auto row = controls::rowForKey(event->key(), List->ListIndex(), List->ListCount(), page)) {
    List->SetListIndex(*row);
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool FinderWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide && !form_.isVisible()) hide();
  return QWidget::eventFilter(watched, event);
}

void showFinder(Form2& form) {
  auto* finder = form.findChild<FinderWindow*>(QString(), Qt::FindDirectChildrenOnly);
  if (finder == nullptr) finder = new FinderWindow(form);
  finder->open();
}

}  // namespace toolwindow
