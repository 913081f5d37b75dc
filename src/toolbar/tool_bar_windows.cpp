#include "toolbar/tool_bar_windows.h"

#include <QCursor>

namespace toolbar {

namespace {

constexpr int TimerPeriod = 100;  // milliseconds

}  // namespace

ToolBarWindows::ToolBarWindows(QWidget& bar) : bar_(bar) {
  timer_.setObjectName(QStringLiteral("TipTicks"));
  timer_.setInterval(TimerPeriod);
}

void ToolBarWindows::destroyAll() {
  tip_.reset();
  popup_.reset();
}

bool ToolBarWindows::endLeaveTracking(SurfaceName surface) {
  const bool isTracked = tracked_ == surface;
  if (isTracked) tracked_.reset();
  return isTracked;
}

void ToolBarWindows::SetHeight(int pixels) {
  if (pixels == bar_.height()) return;
  bar_.resize(bar_.width(), pixels);
  bar_.updateGeometry();
}

void ToolBarWindows::present(SurfaceName surface) {
  if (surface == SurfaceName::Main) {
    bar_.update();
  } else if (popup_) {
    popup_->update();
  }
}

QRect ToolBarWindows::controlOnScreen() const {
  return {bar_.mapToGlobal(QPoint(0, 0)), bar_.size()};
}

void ToolBarWindows::CreateChevronWindow() {
  if (popup_) return;
  popup_ = std::make_unique<QWidget>(&bar_, Qt::ToolTip | Qt::FramelessWindowHint);
  popup_->setObjectName(QStringLiteral("picChevron"));
  popup_->setAttribute(Qt::WA_ShowWithoutActivating);
  popup_->setAttribute(Qt::WA_OpaquePaintEvent);
  popup_->setFocusPolicy(Qt::NoFocus);
  popup_->setMouseTracking(true);
  popup_->installEventFilter(&bar_);
}

void ToolBarWindows::movePopup(const QRect& onScreen) {
  if (popup_) popup_->setGeometry(onScreen);
}

void ToolBarWindows::resizePopup(const QSize& size) {
  if (popup_) popup_->resize(size);
}

void ToolBarWindows::setPopupVisible(bool visible) {
  if (!popup_) return;
  popup_->setVisible(visible);
  // Losing the focus will close the popup.
  if (visible) bar_.setFocus(Qt::OtherFocusReason);
}

void ToolBarWindows::setHand(SurfaceName surface, bool hand) {
  QWidget* const window = surface == SurfaceName::Main ? &bar_ : popup_.get();
  if (window) window->setCursor(hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void ToolBarWindows::ShowToolTip(const ToolTip& tip) {
  tip_ = std::make_unique<TipWindow>(tip, &bar_);
  tip_->showAt(QCursor::pos());
}

}  // namespace toolbar
