#include "toolbar/mc_toolbar.h"

#include <cmath>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "controls/look.h"
#include "toolbar/button_values.h"

namespace toolbar {

namespace {

constexpr int StripWidth = 800;

}  // namespace

McToolBar::McToolBar(QWidget* parent) : QWidget(parent), buttons_(1) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  resize(sizeHint());
}

void McToolBar::SetButton_Count(int count) {
  if (count < 1) return;
  buttons_.resize(static_cast<size_t>(count));
  update();
}

void McToolBar::SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& Value) {
  SetValue(buttons_.at(static_cast<size_t>(ButtonIndex) - 1), PropertyID, Value);
  update();
}

QVariant McToolBar::GetButtonValue(int ButtonIndex, int PropertyID) const {
  return GetValue(buttons_.at(static_cast<size_t>(ButtonIndex) - 1), PropertyID);
}

QSize McToolBar::sizeHint() const {
  return {StripWidth, ButtonSize};
}

void McToolBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  Paint(painter, rect(), buttons_, pointer_);
}

void McToolBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int number = buttonAt(event->position());
  point({number, number});
}

void McToolBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int number = buttonAt(event->position());
  const bool clicked = number == pointer_.Held && clickable(number);
  point({number, 0});
  if (clicked) Q_EMIT Click(number);
}

void McToolBar::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  // Down, up, Click, double click, up: without a second Click.
}

void McToolBar::mouseMoveEvent(QMouseEvent* event) {
  point({buttonAt(event->position()), pointer_.Held});
}

void McToolBar::leaveEvent(QEvent* /*event*/) {
  point({});
}

bool McToolBar::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const int number = buttonAt(help->pos());
  const QString text = number == 0 ? QString() : buttons_[static_cast<size_t>(number) - 1].ToolTipText;
  QToolTip::showText(help->globalPos(), controls::PlainToolTip(text), this);
  return true;
}

int McToolBar::buttonAt(const QPointF& place) const {
  if (place.x() < 0 || place.y() < 0 || place.y() >= ButtonSize) return 0;
  const int number = static_cast<int>(std::floor(place.x() / ButtonSize)) + 1;
  return number <= Button_Count() ? number : 0;
}

bool McToolBar::clickable(int number) const {
  return number > 0 && buttons_[static_cast<size_t>(number) - 1].Enabled;
}

void McToolBar::point(const Pointer& pointer) {
  pointer_ = pointer;
  update();
}

}  // namespace toolbar
