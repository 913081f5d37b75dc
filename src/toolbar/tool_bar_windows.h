#pragma once

#include <memory>
#include <optional>

#include <QTimer>
#include <QWidget>

#include "toolbar/tip_window.h"

namespace toolbar {

/// The toolbar's widget, the popup of hidden buttons, the tool tip, and the timer for it.
class ToolBarWindows : public Windows {
 public:
  explicit ToolBarWindows(QWidget& bar);

  QWidget* popup() const { return popup_.get(); }
  QTimer& timerObject() { return timer_; }
  /// Deletes popup and tip.
  void destroyAll();
  /// Ends the tracking of this surface. Returns whether it was tracked.
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
  void SetTimer() override { timer_.start(); }
  void KillTimer() override { timer_.stop(); }
  void StartLeaveTracking(SurfaceName surface) override { tracked_ = surface; }
  void ShowToolTip(const ToolTip& tip) override;
  void DestroyToolTip() override { tip_.reset(); }

 private:
  QWidget& bar_;
  std::unique_ptr<QWidget> popup_;
  std::unique_ptr<TipWindow> tip_;
  QTimer timer_{&bar_};
  std::optional<SurfaceName> tracked_;
};

}  // namespace toolbar
