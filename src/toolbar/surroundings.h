#pragma once

#include <QFont>
#include <QRect>
#include <QString>

namespace toolbar {

/// What a control takes over from the place where it is put.
struct Ambient {
  bool UserMode = true;  ///< false in a form's designer
  QFont Font;
};

/// The two surfaces that buttons are drawn on.
enum class SurfaceName { Main, Chevron };

/// A tool tip: a text under a title with an icon.
struct ToolTip {
  QString Text;
  QString title;
  int Icon = 0;  ///< 0 none, 1 information, 2 warning, 3 error
  bool isBalloon = true;
  quint32 BackColor = 0;
  quint32 ForeColor = 0;
};

/// The windows of the control.
class Windows {
 public:
  virtual ~Windows() = default;
  virtual void SetHeight(int pixels) = 0;
  /// The surface was drawn or resized, and has to be shown.
  virtual void present(SurfaceName surface) = 0;
  virtual QRect controlOnScreen() const = 0;
  virtual void CreateChevronWindow() = 0;
  virtual void movePopup(const QRect& onScreen) = 0;
  /// The popup's top left corner stays.
  virtual void resizePopup(const QSize& size) = 0;
  virtual void setPopupVisible(bool visible) = 0;
  virtual bool isPopupVisible() const = 0;
  /// Sets the pointer over the surface to a hand, or to the system's arrow.
  virtual void setHand(SurfaceName surface, bool hand) = 0;
  /// Restarts the timer. It sends messages until KillTimer.
  virtual void SetTimer() = 0;
  virtual void KillTimer() = 0;
  /// Asks for one message when the pointer leaves the surface.
  virtual void StartLeaveTracking(SurfaceName surface) = 0;
  virtual void ShowToolTip(const ToolTip& tip) = 0;
  virtual void DestroyToolTip() = 0;
};

}  // namespace toolbar
