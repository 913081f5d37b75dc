#pragma once

#include <memory>
#include <optional>

#include <QTimer>
#include <QWidget>

#include "toolbar/tip_window.h"

namespace toolbar {

/// The windows of a toolbar: its own widget, the popup of hidden buttons, the tip and the timer.
class ToolBarWindows : public Windows {
 public:
  explicit ToolBarWindows(QWidget& bar) : bar_(bar) {}

  QWidget* popup() const { return popup_.get(); }
  QTimer& timerObject() { return timer_; }
  /// Ends popup and tip.
  void destroyAll();
  /// Whether the surface's leave message is still to come; it counts as told then.
  bool endLeaveTracking(SurfaceName surface);

  void SetHeight(int pixels) override;
  void present(SurfaceName surface) override;
  QRect controlOnScreen() const override;
  void CreateChevronWindow() override;
  void movePopup(const QRect& onScreen) override;
  void resizePopup(const QSize& size) override;
  void setPopupVisible(bool visible) override;
  bool isPopupVisible() const override { return popup_ && popup_->isVisible(); }
  void setHand(SurfaceName surface, bool hand) override;
  void SetTimer() override;
  void KillTimer() override { timer_.stop(); }
  void StartLeaveTracking(SurfaceName surface) override { tracked_ = surface; }
  void ShowToolTip(const ToolTip& tip) override;
  void DestroyToolTip() override { tip_.reset(); }

 private:
  QWidget& bar_;
  std::unique_ptr<QWidget> popup_;
  std::unique_ptr<TipWindow> tip_;
  QTimer timer_;
  std::optional<SurfaceName> tracked_;
};

}  // namespace toolbar
