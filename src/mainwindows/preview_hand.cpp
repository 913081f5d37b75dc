#include "mainwindows/preview_hand.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include "controls/list_box.h"
#include "controls/work_queue.h"
#include "editing/commit.h"
#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "platform/failure.h"
#include "themefiles/module_state.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {

using editing::Grip;

namespace {

using namespace std::chrono_literals;

constexpr int DragDistance = 4;  // pixels either way
constexpr auto KeysRestTime = 333ms;
constexpr int LongStep = 10;
constexpr Grip SizingKeys{1, 1};  // Ctrl and an arrow

struct Arrow {
  int key;
  QPoint step;
};
constexpr auto Arrows = std::to_array<Arrow>(
    {{Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}});

QPoint pixelOf(const QMouseEvent& event) {
  const QPointF place = event.position();
  return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

}  // namespace

PreviewHand::PreviewHand(Form1& form)
    : QObject(&form),
      form_(form),
      trial_(form),
      scroll_(*form.previewArea,
              [this](const QPoint& by) {
                mouse_ += by;
                drag(keys_);
              }),
      pacer_([this] { showFrame(); }) {
  qApp->installEventFilter(this);
  rest_.setObjectName(QStringLiteral("KeysAtRest"));
  rest_.setSingleShot(true);
  rest_.setInterval(KeysRestTime);
  rest_.callOnTimeout([this] {
    if (heldKeys_.isEmpty()) settle();
  });
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state != Qt::ApplicationActive) settle();
  });
}

void PreviewHand::settle() {
  if (stage_ == Stage::Keys) {
    commit();
  } else {
    giveUpDrag();
  }
}

void PreviewHand::giveUpDrag() {
  naming_.stop();
  if (stage_ == Stage::Pressed || stage_ == Stage::Dragging) giveUp();
  trial_.forget();
  if (stage_ == Stage::Keys) pacer_.request();
}

void PreviewHand::forgetPlaces() {
  picking_ = {};
}

void PreviewHand::showChosen() {
  if (!picks_) scroll_.show(seenPlace(form_));
  if (!outside_.isEmpty()) form_.withdraw(outside_);
  outside_ = outsideText(form_);
  if (!outside_.isEmpty()) form_.note(outside_);
}

void PreviewHand::letGo() {
  end();
  naming_.stop();
  telling_.reset();
  trial_.forget();
  heldKeys_.clear();
  form_.Workspace->unsetCursor();
  form_.Workspace->setFocusPolicy(Qt::NoFocus);
  form_.Workspace->clearFocus();
}

bool PreviewHand::eventFilter(QObject* watched, QEvent* event) {
  if (!form_.session().isOpen()) return false;
  if (event->type() == QEvent::ContextMenu && watched->isWidgetType() && menuAsked(static_cast<QWidget&>(*watched))) {
    return true;
  }
  if (watched != form_.Workspace) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
      move(static_cast<QMouseEvent&>(*event));
      return false;
    case QEvent::MouseButtonRelease:
      return release(static_cast<QMouseEvent&>(*event));
    case QEvent::ContextMenu:
      return endedDrag_ && static_cast<QContextMenuEvent&>(*event).reason() == QContextMenuEvent::Mouse;
    case QEvent::KeyPress:
      return keyPress(static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
      keyRelease(static_cast<QKeyEvent&>(*event));
      return false;
    case QEvent::Leave:
      naming_.stop();
      return false;
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
      heldKeys_.clear();
      settle();
      return false;
    default:
      return false;
  }
}

/// Commits what the arrow keys have done before a menu comes up. Returns whether the menu is no longer meant:
/// committing has drawn the screen and served events.
bool PreviewHand::menuAsked(const QWidget& watched) {
  if (stage_ != Stage::Keys) return false;
  const QPointer<const QWidget> asked(&watched);
  settle();
  return !asked || !asked->isVisible() || QApplication::activePopupWidget() != nullptr ||
         QApplication::activeModalWidget() != nullptr;
}

bool PreviewHand::press(const QMouseEvent& event) {
  naming_.stop();
  endedDrag_ = stage_ == Stage::Pressed || stage_ == Stage::Dragging;
  settle();
  // Committing has drawn the screen and served events: the theme may be closed by now.
  if (event.button() != Qt::LeftButton || !form_.session().isOpen()) return false;
  pressed_ = mouse_ = pixelOf(event);
  const bool free = event.buttons() == Qt::LeftButton && !form_.queue().busy();
  picksAtRelease_ = free && selectedAt(form_, pressed_).under;
  if ((picksAtRelease_ || pick(pressed_)) && free) stage_ = Stage::Pressed;
  return true;
}

/// Chooses the object at the place; false where there is none.
bool PreviewHand::pick(const QPoint& place) {
  const int row = picking_.rowAt(place, form_.account(), form_.session().objects());
  if (row < 0) return false;
  form_.toolWindow()->objects().setFocus();
  form_.Workspace->setFocus();  // the keys go on here
  const QScopedValueRollback picks(picks_, true);
  form_.session().pickObject(row);
  return true;
}

void PreviewHand::move(const QMouseEvent& event) {
  const bool byMouse = stage_ == Stage::Pressed || stage_ == Stage::Dragging;
  if (!byMouse) return hover(pixelOf(event), event.buttons() == Qt::NoButton);
  if ((event.buttons() & Qt::LeftButton) == 0) return giveUp();
  mouse_ = pixelOf(event);
  const QPoint way = mouse_ - pressed_;
  if (stage_ == Stage::Pressed) {
    if (std::max(std::abs(way.x()), std::abs(way.y())) < DragDistance) return;
    const SelectedObject selected = selectedAt(form_, pressed_);
    if (!take(selected, editing::gripAt(selected.place, pressed_), true)) return;
    stage_ = Stage::Dragging;
  }
  drag(event.modifiers());
  scroll_.dragAt(mouse_);
}

void PreviewHand::drag(Qt::KeyboardModifiers keys) {
  const QPoint way = mouse_ - pressed_;
  keys_ = keys;
  now_ = editing::moved(start_, grip_, (keys & Qt::ControlModifier) != 0 ? editing::straight(way) : way);
  pacer_.request();
}

bool PreviewHand::release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  if (stage_ == Stage::Pressed) {
    stage_ = Stage::None;
    if (picksAtRelease_) pick(pressed_);
  } else if (stage_ == Stage::Dragging) {
    move(QMouseEvent(QEvent::MouseMove, event.position(), event.globalPosition(), Qt::NoButton, Qt::LeftButton,
                     event.modifiers()));
    commit();
  }
  if (form_.session().isOpen()) hover(pixelOf(event), event.buttons() == Qt::NoButton);
  return true;
}

/// Gives the pointer the shape of what a press would do here.
void PreviewHand::hover(const QPoint& place, bool free) {
  if (!free) return;
  if (stage_ == Stage::None) naming_.pointerAt(place);
  const SelectedObject selected = form_.queue().busy() ? SelectedObject() : selectedAt(form_, place);
  const Qt::CursorShape shape =
      selected.under ? editing::shapeOf(editing::gripAt(selected.place, place)) : Qt::ArrowCursor;
  if (form_.Workspace->cursor().shape() != shape) form_.Workspace->setCursor(shape);
}

/// Begins to move or size an object. Returns false if it can't be; `tells` has the reason reported.
bool PreviewHand::take(const SelectedObject& selected, Grip grip, bool tells) {
  stage_ = Stage::None;
  if (selected.section.isEmpty()) return false;
  section_ = selected.section;
  grip_ = grip;
  telling_ = std::make_unique<platform::ReportScope>(form_);
  const auto read = [&] { now_ = start_ = editing::readHeld(form_.session(), section_, grip, selected.heightKey); };
  const bool done = tells ? platform::guarded(form_, QStringLiteral("%1 stays as it is").arg(section_), read)
                          : platform::guardedSilently(read);
  if (!done) telling_.reset();
  return done;
}

bool PreviewHand::keyPress(const QKeyEvent& event) {
  naming_.stop();
  if (event.key() == Qt::Key_Escape) {
    if (stage_ == Stage::None) return false;
    giveUp();
    return true;
  }
  const auto* const found =
      std::find_if(Arrows.begin(), Arrows.end(), [&](const Arrow& arrow) { return arrow.key == event.key(); });
  if (found == Arrows.end() || (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  if (stage_ == Stage::None || stage_ == Stage::Keys) arrow(event, found->step);
  return true;
}

void PreviewHand::arrow(const QKeyEvent& event, const QPoint& step) {
  const Grip grip = (event.modifiers() & Qt::ControlModifier) != 0 ? SizingKeys : Grip();
  // Committing serves events: a key among them may have begun anew, or the mouse taken over.
  while (stage_ == Stage::Keys && grip != grip_) settle();
  const bool free = stage_ == Stage::None || stage_ == Stage::Keys;
  if (!free || !form_.session().isOpen()) return;
  // What height a button is drawn with is known when it has been drawn.
  if (stage_ == Stage::None && grip.sizes() && form_.queue().busy()) return;
  if (stage_ == Stage::None && !take(selectedAt(form_, {}), grip, !event.isAutoRepeat())) return;
  stage_ = Stage::Keys;
  heldKeys_.insert(event.key());
  now_ = editing::moved(now_, grip_, (event.modifiers() & Qt::ShiftModifier) != 0 ? step * LongStep : step);
  rest_.start();
  pacer_.request();
}

void PreviewHand::keyRelease(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  heldKeys_.remove(event.key());
  if (stage_ == Stage::Keys && heldKeys_.isEmpty() && !rest_.isActive()) settle();
}

/// Draws a frame with the values on trial. If a drawing is running, it comes after that.
void PreviewHand::showFrame() {
  if (stage_ != Stage::Dragging && stage_ != Stage::Keys) return;
  if (form_.queue().busy()) return pacer_.request();
  trial_.show({section_, editing::changedValues(start_, now_)});
  const QRect mark = form_.Workspace->markRect();
  form_.Workspace->setHandLabel(editing::labelOf(now_, grip_), stage_ == Stage::Dragging ? mouse_ : mark.bottomRight());
  if (stage_ == Stage::Keys) Q_EMIT form_.Workspace->watched(grip_.sizes() ? mark.bottomRight() : mark.topLeft());
}

void PreviewHand::end() {
  stage_ = Stage::None;
  scroll_.stop();
  form_.Workspace->setHandLabel({});
}

void PreviewHand::commit() {
  end();
  const auto values = editing::changedValues(start_, now_);
  const auto telling = std::exchange(telling_, nullptr);
  if (values.empty()) return trial_.putBack();
  // Another program may have taken the section away meanwhile.
  const bool isThere = platform::guarded(form_, QStringLiteral("%1 stays as it is").arg(section_), [&] {
    editing::readHeld(form_.session(), section_, grip_, start_.heightKey);
  });
  const QString section = section_;
  if (!isThere || !editing::commitValues(form_.session(), {{section, values}})) trial_.putBack();
}

void PreviewHand::giveUp() {
  const bool shown = stage_ != Stage::Pressed;
  end();
  telling_.reset();
  if (shown) trial_.putBack();
}

}  // namespace mainwindows
