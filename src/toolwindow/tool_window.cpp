#include "toolwindow/tool_window.h"

#include <utility>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/shown_text.h"
#include "controls/work_queue.h"
#include "editing/reports.h"
#include "platform/failure.h"
#include "themefiles/module_state.h"
#include "themefiles/screen_table.h"
#include "toolwindow/object_menu.h"
#include "toolwindow/saved_marking.h"
#include "toolwindow/saved_menus.h"
#include "toolwindow/value_frame.h"

namespace toolwindow {
namespace {

using controls::Cause;
using editing::Session;
using themefiles::EditorFrame;

static_assert(editing::LongestValue == controls::LongestText, "an editor takes what its controls show whole");

/// Client size of a window, in pixels, from its outer size in twips.
QSize clientSize(const ToolLayout& layout) {
  return {controls::toPixels(layout.Width - controls::FrameWidth),
          controls::toPixels(layout.Height - controls::FrameHeight)};
}

bool isNumber(EditorFrame frame) {
  return frame == EditorFrame::Numbers || frame == EditorFrame::FloatNumbers;
}

}  // namespace

Form2::Form2(ToolServices given, QWidget* owner)
    : QWidget(owner, Qt::Tool),
      services(std::move(given)),
      Combo1(new controls::ComboBox(this)),
      List1(new controls::ListBox(controls::ListBox::Order::Sorted, this)),
      ListView1(new controls::ListView(this)),
      area_(services, placed_, this),
      tags_(*List1),
      markPlacing_(services) {
  build();
  services.session.begin(tags_);
  marking_ = std::make_unique<SavedMarking>(services, *ListView1, *List1);
  connectLists();
  connectSession();
  connectMenus();
}

Form2::~Form2() = default;

void Form2::build() {
  setObjectName(QStringLiteral("Form2"));
  setWindowTitle(QStringLiteral("Tool"));
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  placed_.add(*Combo1, &ToolLayout::Combo1, "Combo1", "Screen");
  placed_.add(*List1, &ToolLayout::List1, "List1", "Objects of the screen");
  placed_.add(*ListView1, &ToolLayout::ListView1, "ListView1", "Keys of the object");
  for (QWidget* control : std::initializer_list<QWidget*>{Combo1, List1, ListView1}) control->setEnabled(false);
  themefiles::ModuleState& state = services.session.state();
  themefiles::InitScreenTable(state);
  for (const themefiles::ScreenRow& row : state.ScreenTable) {
    if (!row.Name.isEmpty()) Combo1->AddItem(row.Name);
  }
  state.EditorShown = false;
  fitWindow();
  ListView1->setColumns({QStringLiteral("Item"), QStringLiteral("Value")},
                        {controls::toPixels(950), controls::toPixels(1300)});
}

void Form2::connectLists() {
  connect(Combo1, &controls::ComboBox::Click, this, [this] {
    services.session.chooseScreen(Combo1->Text());
    services.queue.choose();
  });
  connect(List1, &controls::ListBox::Click, this, [this](Cause cause) {
    services.session.objectClicked(cause == Cause::User ? editing::Chooser::User : editing::Chooser::List);
  });
  connect(ListView1, &controls::ListView::itemSelectionChanged, this,
          [this] { services.session.chooseRow(ListView1->selectedRow()); });
  connect(ListView1, &controls::ListView::ItemClick, this, &Form2::ListView1_ItemClick);
  List1->setJoining(true);
  connect(List1, &controls::ListBox::joinAsked, this,
          [this](int row) { services.session.toggleMember(List1->List(row)); });
  connect(ListView1, &controls::ListView::opened, this, &Form2::enterEditor);
  ListView1->setTakesDigits([this](int row) {
    const auto group = themefiles::groupOf(themefiles::keyIdentity(ListView1->rowText(row)));
    return group && isNumber(themefiles::rowOf(*group).frame);
  });
  connect(&area_, &EditorArea::updateWanted, this, &Form2::Command1_Click);
  connect(&area_, &EditorArea::leaveWanted, ListView1, [this] { ListView1->setFocus(); });
}

void Form2::connectSession() {
  Session& session = services.session;
  // The window, and all in it that follow the session, may outlive the theme by the begin of the next one.
  connect(&session, &Session::ended, this, [this] { services.session.disconnect(this); });
  connect(&session, &Session::valuesRead, this, &Form2::showValues);
  connect(&session, &Session::valueWritten, this, &Form2::showWritten);
  connect(&session, &Session::membersChanged, this, &Form2::showMembers);
  connect(&session, &Session::rowWanted, this, &Form2::chooseRow);
  connect(&session, &Session::screenWanted, this, [this](const QString& name) {
    platform::guarded(services.session.status(), editing::FindStep.toString(), [&] { Combo1->SetText(name); });
  });
  connect(&session, &Session::drawWanted, this, [this] { services.queue.draw(); });
  // Keeps the notes until a drawing that waits has run, so that both are reported together.
  connect(&session, &Session::edited, this,
          [this](const std::shared_ptr<platform::ReportScope>& scope) { services.queue.runOutside([scope] {}); });
}

void Form2::connectMenus() {
  openMenusByKeys(*this);
  auto* rowMenu = new RowMenu(services, *ListView1);
  connect(rowMenu, &RowMenu::putBack, this, &Form2::showPutBack);
  new ObjectMenu(services, *List1);
}

void Form2::start() {
  for (QWidget* control : std::initializer_list<QWidget*>{Combo1, List1, ListView1}) control->setEnabled(true);
  activateWindow();
  Combo1->setFocus();
  Combo1->SetListIndex(0);
}

void Form2::goTo(const themefiles::Hit& hit) {
  activateWindow();
  QWidget* found = hit.object.isEmpty() ? static_cast<QWidget*>(Combo1) : List1;
  if (hit.row >= 0) found = ListView1;
  found->setFocus();
  services.session.goTo(hit);
}

/// Shows the values of another object. An open editor was that of a row that is gone.
void Form2::showValues(const std::vector<themefiles::ValueRow>& rows) {
  area_.dropChanges();
  ListView1->clearRows();
  for (const themefiles::ValueRow& row : rows) ListView1->addRow(row.Item, row.Value);
  if (services.session.state().EditorShown) closeEditorFrame();
}

/// Shows in the list which objects are together with the chosen one.
void Form2::showMembers() {
  const QStringList& members = services.session.members();
  for (int row = 0; row < List1->ListCount(); ++row) {
    const bool joined = members.contains(List1->List(row));
    List1->setJoined(row, joined ? QStringLiteral("together with ") + services.session.object() : QString());
  }
}

/// Goes on to the row of a search hit.
void Form2::chooseRow(const themefiles::Hit& hit) {
  platform::guarded(services.session.status(), editing::FindStep.toString(), [&] {
    if (hit.row >= ListView1->rowCount() || ListView1->rowText(hit.row) != hit.key) {
      throw platform::Failure(QStringLiteral("%1 of %2 is gone").arg(hit.key, hit.object));
    }
    ListView1->selectRow(hit.row);
    ListView1_ItemClick(hit.row);
  });
}

/// A row of the grid has been clicked: opens the editor that fits its key, with its value, or closes an open one if no
/// editor fits. A value that the editor can't show is reported, and all frames stay hidden.
void Form2::ListView1_ItemClick(int row) {
  platform::guarded(services.session.status(), editing::ReadStep.toString(), [&] {
    area_.dropChanges();
    HideEditorFrames();
    const auto group = themefiles::groupOf(themefiles::keyIdentity(ListView1->rowText(row)));
    if (group) {
      const QString value = ListView1->subItem(row);
      if (value.size() > editing::LongestValue) throw platform::Failure(editing::tooLongText(ListView1->rowText(row)));
      const themefiles::GroupRow& groupRow = themefiles::rowOf(*group);
      area_.frameOf(groupRow.frame).open(groupRow, ListView1->rowText(row), value);
      ShowEditorFrame(groupRow.frame);
    } else if (services.session.state().EditorShown) {
      closeEditorFrame();
    }
  });
}

/// The user wants to go on in the editor of the row, which the click has opened if there is one.
void Form2::enterEditor(int row, const QString& typed) {
  const auto group = themefiles::groupOf(themefiles::keyIdentity(ListView1->rowText(row)));
  if (!group) return;
  ValueFrame& frame = area_.frameOf(themefiles::rowOf(*group).frame);
  if (frame.isVisible()) frame.enter(typed);
}

editing::EditedRow Form2::editedRow(int row) const {
  return {row, ListView1->rowText(row), ListView1->subItem(row)};
}

/// Update. The editor is the one of the selected row's key, whatever frame is open.
void Form2::Command1_Click() {
  // Moving and committing draw, and serve events: the window may be gone by then.
  const QPointer<Form2> open(this);
  services.session.settle();
  if (!open) return;
  const bool done = editing::commitRow(services.session, editedRow(services.session.row()),
                                       [this](EditorFrame frame) { return area_.propose(frame); });
  if (!open) return;
  area_.proposalEnded();
  if (done) ListView1->setFocus();
}

/// Shows a value that has been written. If it was written by hand, an open editor of the row follows, and the focus
/// stays.
void Form2::showWritten(int row, const QString& key, const QString& value) {
  if (row >= 0) {
    area_.proposalWritten();
    return ListView1->setSubItem(row, value);
  }
  const int first = firstRowOf(*ListView1, key);
  if (first < 0) return;
  ListView1->setSubItem(first, value);
  if (!services.session.state().EditorShown || services.session.row() != first) return;
  QWidget* const focus = focusWidget();
  ListView1_ItemClick(first);
  if (focus != nullptr) focus->setFocus();
}

/// The saved value of a row has been put back: an open editor of it is loaded again. That comes behind the report of
/// the commit, so that a value that no editor can show is reported, too.
void Form2::showPutBack(int row) {
  ListView1->setFocus();
  if (services.session.state().EditorShown && services.session.row() == row) ListView1_ItemClick(row);
}

/// Opens the editor area with the frame, or moves on to another frame: the window grows at the bottom.
void Form2::ShowEditorFrame(EditorFrame frame) {
  area_.show(frame);
  services.session.state().EditorShown = true;
  layOutOpening(layout_, placed_.placeOf(area_.frameOf(frame), layout_));
  fitWindow();
}

/// Closes the editor area: the window shrinks to the lists.
void Form2::closeEditorFrame() {
  services.session.state().EditorShown = false;
  layOutClosing(layout_);
  HideEditorFrames();
  area_.hide();
  fitWindow();
}

/// Hides the six frames. If a control of the editor area has the focus, the grid gets it.
void Form2::HideEditorFrames() {
  // Otherwise the toolkit would give the focus to the next control.
  if (area_.has(focusWidget())) ListView1->setFocus();
  area_.hideFrames();
}

/// Gives the window the layout's size, and the controls their places.
void Form2::fitWindow() {
  fitted_ = layout_;
  ownSizes_.add(clientSize(layout_));
  resize(clientSize(layout_));
  applyLayout();
}

void Form2::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // The window system also reports sizes that the window gave itself, and late. These are laid out already.
  if (ownSizes_.has(event->size(), devicePixelRatioF())) {
    layout_ = fitted_;
  } else {
    layOut(layout_, event->size().width() * controls::TwipsPerPixel + controls::FrameWidth,
           event->size().height() * controls::TwipsPerPixel + controls::FrameHeight,
           services.session.state().EditorShown, false);
  }
  applyLayout();
}

void Form2::closeEvent(QCloseEvent* event) {
  // The window ends with its theme, unasked. A close box may look like the program's own close (Wayland).
  event->ignore();
}

void Form2::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return services.session.endGroup();
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QWidget* const focus = focusWidget();
  if (!enter || !area_.has(focus)) return QWidget::keyPressEvent(event);
  if (!event->isAutoRepeat()) area_.pressEnter(focus);
}

}  // namespace toolwindow
