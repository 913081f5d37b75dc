#include "toolbar/mc_toolbar.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"

namespace toolbar {

namespace {

void present(QWidget& window, const ButtonSurface& surface) {
  QPainter painter(&window);
  drawing::Show(painter, surface.raster());
}

}  // namespace

Ambient ambientOf(const QWidget* parent) {
  return {true, parent == nullptr ? QApplication::font() : parent->font()};
}

McToolBar::McToolBar(QWidget* parent) : McToolBar(ambientOf(parent), parent) {}

McToolBar::McToolBar(const Ambient& ambient, QWidget* parent)
    : ToolBarEvents(parent), windows_(*this), control_(windows_, *this, ambient), mouse_(control_, windows_) {
  setFocusPolicy(ambient.UserMode ? Qt::TabFocus : Qt::NoFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  installAccessibility();
  connect(&windows_.timerObject(), &QTimer::timeout, this, [this] { control_.zSubclass_Proc(Control::Timer); });
  control_.resize(size());
}

McToolBar::~McToolBar() {
  // Closing windows send events to this widget, which needs its control for them.
  windows_.destroyAll();
}

bool McToolBar::UserControl_ReadProperties(QByteArrayView bytes) {
  const std::optional<propertybag::PropertyBag> bag = propertybag::bagOfBytes(bytes);
  const bool isSound = control_.UserControl_ReadProperties(bag.value_or(propertybag::PropertyBag()));
  if (bag && isSound) resize(propertybag::storedSize(*bag).value_or(size()));
  // A hidden widget gets no resize event yet.
  control_.resize(size());
  watchForm();
  return bag && isSound;
}

QByteArray McToolBar::UserControl_WriteProperties() const {
  propertybag::PropertyBag bag;
  propertybag::storeSize(bag, size());
  control_.UserControl_WriteProperties(bag);
  return propertybag::storedBytes(bag);
}

void McToolBar::watchForm() {
  if (form_ == window()) return;
  if (form_) form_->removeEventFilter(this);
  form_ = window();
  form_->installEventFilter(this);
}

bool McToolBar::event(QEvent* event) {
  // Children come before the control is there, and go after it.
  if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved) return QWidget::event(event);
  // In a designer the mouse doesn't belong to the toolbar.
  if (control_.UserMode() && mouse_.deliver(SurfaceName::Main, rect(), event)) return true;
  if (event->type() == QEvent::Show) watchForm();
  return QWidget::event(event);
}

bool McToolBar::eventFilter(QObject* object, QEvent* event) {
  QWidget* const popup = windows_.popup();
  if (object == popup && event->type() == QEvent::Paint) {
    present(*popup, control_.surfaceOf(SurfaceName::Chevron));
    return true;
  }
  if (object == popup) return mouse_.deliver(SurfaceName::Chevron, popup->rect(), event);
  if (object == form_ && event->type() == QEvent::Move) control_.zSubclass_Proc(Control::Move);
  if (object == form_ && event->type() == QEvent::Resize) control_.zSubclass_Proc(Control::Size);
  return QWidget::eventFilter(object, event);
}

void McToolBar::paintEvent(QPaintEvent* /*event*/) {
  present(*this, control_.surfaceOf(SurfaceName::Main));
}

void McToolBar::resizeEvent(QResizeEvent* /*event*/) {
  control_.resize(size());
}

void McToolBar::hideEvent(QHideEvent* /*event*/) {
  control_.zSubclass_Proc(Control::KillFocus);
  windows_.DestroyToolTip();
}

void McToolBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      control_.stepByKey(-1);
      break;
    case Qt::Key_Right:
    case Qt::Key_Down:
      control_.stepByKey(1);
      break;
    case Qt::Key_Home:
      control_.endByKey(false);
      break;
    case Qt::Key_End:
      control_.endByKey(true);
      break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (event->isAutoRepeat()) return;
      if (!control_.enterByKey()) control_.pressByKey();
      break;
    case Qt::Key_Escape:
      if (control_.escapeByKey()) break;
      [[fallthrough]];
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  tellKeyPlace();
}

/// After the window got the focus no button is chosen yet. The first Tab chooses one instead of leaving.
bool McToolBar::focusNextPrevChild(bool next) {
  if (!hasFocus() || !control_.enterByKey()) return QWidget::focusNextPrevChild(next);
  tellKeyPlace();
  return true;
}

void McToolBar::focusInEvent(QFocusEvent* event) {
  const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (byKey) control_.enterByKey();
  tellKeyPlace();
}

void McToolBar::focusOutEvent(QFocusEvent* /*event*/) {
  control_.leaveByKey();
  control_.zSubclass_Proc(Control::KillFocus);
}

void McToolBar::tellKeyPlace() {
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(accessibleChildOf(control_));
  QAccessible::updateAccessibility(&event);
}

void McToolBar::press(int ButtonIndex) {
  control_.pointByKey(ButtonIndex);
  control_.pressByKey();
}

}  // namespace toolbar
