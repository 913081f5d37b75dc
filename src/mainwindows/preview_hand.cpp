#include "mainwindows/preview_hand.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include "controls/list_box.h"
#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "mainwindows/selected_object.h"
#include "mainwindows/workspace.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

constexpr int DragDistance = 4;  // pixels either way

QPoint pixelOf(const QMouseEvent& event) {
  const QPointF place = event.position();
  return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

}  // namespace

PreviewHand::PreviewHand(Form1& form)
    : QObject(&form),
      form_(form),
      held_(form),
      scroll_(*form.previewArea,
              [this](const QPoint& by) {
                mouse_ += by;
                drag(keys_);
              }),
      arrows_(this, [this] { commitKeys(); }),
      pacer_([this] { showFrame(); }) {
  qApp->installEventFilter(this);
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
  if (byMouse()) giveUp();
  held_.forgetPicture();
  if (stage_ == Stage::Keys) pacer_.request();
}

void PreviewHand::showChosen() {
  if (!picks_) scroll_.show(seenPlace(form_, form_.session().object()));
  if (!outside_.isEmpty()) form_.withdraw(outside_);
  outside_ = outsideText(form_);
  if (!outside_.isEmpty()) form_.note(outside_);
}

void PreviewHand::letGo() {
  end();
  naming_.stop();
  held_.letGo();
  arrows_.forget();
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
      arrows_.forget();
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
  endedDrag_ = byMouse();
  settle();
  // Committing has drawn the screen and served events: the theme may be closed by now.
  if (event.button() != Qt::LeftButton || !form_.session().isOpen()) return false;
  pressed_ = mouse_ = pixelOf(event);
  const bool free = event.buttons() == Qt::LeftButton && !form_.queue().busy();
  joins_ = event.modifiers() == Qt::ShiftModifier;
  onHeld_ = free && isGroupAt(form_, pressed_);
  if (joins_ && !free) {
    join(pressed_);
  } else if (!joins_ && !onHeld_ && !pick(pressed_)) {
    form_.session().endGroup();
  } else if (free) {
    stage_ = Stage::Pressed;
  }
  return true;
}

/// Adds the topmost object at the place to the group of the selected one, or takes it out.
void PreviewHand::join(const QPoint& place) {
  const editing::Session& session = form_.session();
  if (session.object().isEmpty()) return static_cast<void>(pick(place));
  form_.Workspace->setFocus();
  const int row = PreviewPicking::topmostBut(session.object(), place, form_.account(), session.objects());
  if (row >= 0) form_.session().toggleMember(session.objects().List(row));
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
  if (!byMouse()) return hover(pixelOf(event), event.buttons() == Qt::NoButton);
  if ((event.buttons() & Qt::LeftButton) == 0) return giveUp();
  mouse_ = pixelOf(event);
  const QPoint way = mouse_ - pressed_;
  if (stage_ == Stage::Pressed) {
    if (std::max(std::abs(way.x()), std::abs(way.y())) < DragDistance) return;
    if (!startDrag()) return;
  }
  drag(event.modifiers());
  scroll_.dragAt(mouse_);
}

/// Takes what lies under the press; false if that can't be moved.
bool PreviewHand::startDrag() {
  stage_ = Stage::None;
  if (joins_ && !onHeld_ && !pick(pressed_)) return false;
  const editing::Grip grip = editing::gripAt(selectedAt(form_, pressed_).place, pressed_);
  if (!held_.take(grip, true)) return false;
  guides_ = editing::Guides(held_.guides(), held_.startPlace(), grip);
  stage_ = Stage::Dragging;
  return true;
}

void PreviewHand::drag(Qt::KeyboardModifiers keys) {
  const QPoint way = mouse_ - pressed_;
  keys_ = keys;
  const bool oneWay = (keys & Qt::ControlModifier) != 0;
  editing::MetMovement movement{oneWay ? editing::straight(way) : way, {}};
  if (guidesOn_ && (keys & Qt::ShiftModifier) == 0) {
    const QPoint by = movement.by;
    movement = guides_.met(by, !oneWay || by.x() != 0, !oneWay || by.y() != 0);
  }
  met_ = movement.lines;
  held_.moveFromStart(movement.by);
  pacer_.request();
}

bool PreviewHand::release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  if (stage_ == Stage::Pressed) {
    stage_ = Stage::None;
    if (joins_) join(pressed_);
    if (!joins_ && onHeld_) pick(pressed_);
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
  const bool onHeld = !form_.queue().busy() && isGroupAt(form_, place);
  const Qt::CursorShape shape =
      onHeld ? editing::shapeOf(editing::gripAt(selectedAt(form_, place).place, place)) : Qt::ArrowCursor;
  if (form_.Workspace->cursor().shape() != shape) form_.Workspace->setCursor(shape);
}

bool PreviewHand::keyPress(const QKeyEvent& event) {
  naming_.stop();
  if (event.key() == Qt::Key_Escape) {
    const bool holdsNone = stage_ == Stage::None;
    if (holdsNone && form_.session().members().isEmpty()) return false;
    holdsNone ? form_.session().endGroup() : giveUp();
    return true;
  }
  if (stage_ == Stage::Dragging) drag(event.modifiers());
  const auto step = ArrowKeys::stepOf(event);
  if (!step) return false;
  if (stage_ == Stage::None || stage_ == Stage::Keys) arrow(event, *step);
  return true;
}

void PreviewHand::arrow(const QKeyEvent& event, const ArrowStep& step) {
  // Committing serves events: a key among them may have begun anew, or the mouse taken over.
  while (stage_ == Stage::Keys && step.grip != held_.grip()) settle();
  const bool free = stage_ == Stage::None || stage_ == Stage::Keys;
  if (!free || !form_.session().isOpen()) return;
  // What height a button is drawn with is known when it has been drawn.
  if (stage_ == Stage::None && step.grip.sizes() && form_.queue().busy()) return;
  if (stage_ == Stage::None && !held_.take(step.grip, !event.isAutoRepeat())) return;
  stage_ = Stage::Keys;
  arrows_.press(event.key());
  held_.moveOn(step.by);
  pacer_.request();
}

void PreviewHand::keyRelease(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  if (stage_ == Stage::Dragging) drag(event.modifiers());
  arrows_.release(event.key());
  if (arrows_.areAtRest()) commitKeys();
}

/// The mouse may have taken over from the keys before they came to rest.
void PreviewHand::commitKeys() {
  if (stage_ == Stage::Keys) commit();
}

/// Draws a frame with the values on trial. If a drawing is running, it comes after that.
void PreviewHand::showFrame() {
  if (stage_ != Stage::Dragging && stage_ != Stage::Keys) return;
  if (form_.queue().busy()) return pacer_.request();
  held_.showFrame();
  const bool drags = stage_ == Stage::Dragging;
  const QRect mark = form_.Workspace->markRect();
  form_.Workspace->setGuideLines(met_);
  form_.Workspace->setHandLabel(held_.label() + editing::metText(met_), drags ? mouse_ : mark.bottomRight());
  if (!drags) Q_EMIT form_.Workspace->watched(held_.grip().sizes() ? mark.bottomRight() : mark.topLeft());
}

void PreviewHand::end() {
  stage_ = Stage::None;
  met_.clear();
  scroll_.stop();
  form_.Workspace->setGuideLines({});
  form_.Workspace->setHandLabel({});
}

void PreviewHand::commit() {
  end();
  held_.commit();
}

void PreviewHand::giveUp() {
  const bool shown = stage_ != Stage::Pressed;
  end();
  if (shown) held_.giveUp();
}

}  // namespace mainwindows
