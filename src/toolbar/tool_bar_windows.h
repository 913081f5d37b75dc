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

  QWidget* Popup() const { return popup_.get(); }
  QTimer& TimerObject() { return timer_; }
  /// Ends popup and tip.
  void destroyAll();
  /// The surface whose leaving is still to be told.
  std::optional<SurfaceName> Tracked;

  void SetHeight(int pixels) override;
  void Present(SurfaceName surface) override;
  QRect ControlOnScreen() const override;
  void CreateChevronWindow() override;
  void MovePopup(const QRect& onScreen) override;
  void ResizePopup(const QSize& size) override;
  void SetPopupVisible(bool visible) override;
  bool IsPopupVisible() const override { return popup_ && popup_->isVisible(); }
  void SetHand(SurfaceName surface, bool hand) override;
  void SetTimer() override;
  void KillTimer() override { timer_.stop(); }
  void StartLeaveTracking(SurfaceName surface) override { Tracked = surface; }
  void ShowToolTip(const ToolTip& tip) override;
  void DestroyToolTip() override { tip_.reset(); }

 private:
  QWidget& bar_;
  std::unique_ptr<QWidget> popup_;
  std::unique_ptr<TipWindow> tip_;
  QTimer timer_;
};

}  // namespace toolbar
