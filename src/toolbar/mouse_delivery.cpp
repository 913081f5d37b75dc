#include "toolbar/mouse_delivery.h"

#include <cmath>

namespace toolbar {

namespace {

QPoint placeOf(const QMouseEvent& event) {
  const QPointF place = event.position();
  return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

MouseArguments argumentsOf(const QMouseEvent& event, QPoint place, int buttons) {
  constexpr int KnownButtons = 7;  // left, right, middle
  int shift = 0;
  if (event.modifiers() & Qt::ShiftModifier) shift |= 1;
  if (event.modifiers() & Qt::ControlModifier) shift |= 2;
  if (event.modifiers() & Qt::AltModifier) shift |= 4;
  return {static_cast<qint16>(buttons & KnownButtons), static_cast<qint16>(shift), static_cast<float>(place.x()),
          static_cast<float>(place.y())};
}

}  // namespace

bool MouseDelivery::deliver(SurfaceName surface, const QRect& area, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
      movedTo(surface, area, *static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::MouseButtonPress:
      pressed(surface, *static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::MouseButtonDblClick:
      windows_.DestroyToolTip();
      clickBegan_.reset();
      control_.picDraw_DblClick(surface);
      return true;
    case QEvent::MouseButtonRelease:
      released(surface, area, *static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::Leave:
      leave(surface);
      return true;
    default:
      return false;
  }
}

void MouseDelivery::move(SurfaceName surface, const QMouseEvent& event, QPoint place, int buttons) {
  lastMove_ = {surface, place};
  const MouseArguments arguments = argumentsOf(event, place, buttons);
  if (surface == SurfaceName::Main) {
    control_.picMain_MouseMove(arguments);
  } else {
    control_.picChevron_MouseMove(arguments);
  }
  control_.zSubclass_Proc(Control::MouseMove, surface, place);
}

void MouseDelivery::movedTo(SurfaceName surface, const QRect& area, const QMouseEvent& event) {
  const QPoint place = placeOf(event);
  if (event.buttons() != Qt::NoButton && !area.contains(place)) {
    leave(surface);
  } else {
    move(surface, event, place, static_cast<int>(event.buttons()));
  }
}

void MouseDelivery::pressed(SurfaceName surface, const QMouseEvent& event) {
  const QPoint place = placeOf(event);
  if (lastMove_ != Place{surface, place} || control_.picDraw() != surface) move(surface, event, place, 0);
  windows_.DestroyToolTip();
  if (event.button() == Qt::LeftButton) clickBegan_ = surface;
  control_.picDraw_MouseDown(surface, argumentsOf(event, place, static_cast<int>(event.button())));
}

void MouseDelivery::released(SurfaceName surface, const QRect& area, const QMouseEvent& event) {
  const QPoint place = placeOf(event);
  const bool isInside = area.contains(place);
  const bool clicks = event.button() == Qt::LeftButton && clickBegan_ == surface && isInside;
  if (event.button() == Qt::LeftButton) clickBegan_.reset();
  if (isInside && lastMove_ != Place{surface, place}) move(surface, event, place, static_cast<int>(event.button()));
  control_.picDraw_MouseUp(surface, argumentsOf(event, place, static_cast<int>(event.button())));
  if (clicks) control_.picDraw_Click(surface);
}

void MouseDelivery::leave(SurfaceName surface) {
  lastMove_.reset();
  if (windows_.endLeaveTracking(surface)) control_.zSubclass_Proc(Control::MouseLeave, surface);
}

}  // namespace toolbar
