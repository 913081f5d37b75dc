#pragma once

#include <QFont>
#include <QRect>
#include <QString>

namespace toolbar {

/// What the place of a control gives it.
struct Ambient {
  bool UserMode = true;  ///< false in a form's designer
  QFont Font;
};

/// The two surfaces that buttons are drawn on.
enum class SurfaceName { Main, Chevron };

/// A tip in the manner of the platform: a text under a title with an icon.
struct ToolTip {
  QString Text;
  QString title;
  int Icon = 0;  ///< 0 none, 1 information, 2 warning, 3 error
  bool isBalloon = true;
  quint32 BackColor = 0;
  quint32 ForeColor = 0;
};

/// The windows that the control lives in. Only the popup has places on the screen.
class Windows {
 public:
  virtual ~Windows() = default;
  virtual void SetHeight(int pixels) = 0;
  /// The surface's pixels or size are new.
  virtual void present(SurfaceName surface) = 0;
  virtual QRect controlOnScreen() const = 0;
  virtual void CreateChevronWindow() = 0;
  virtual void movePopup(const QRect& onScreen) = 0;
  /// Its top left stays.
  virtual void resizePopup(const QSize& size) = 0;
  virtual void setPopupVisible(bool visible) = 0;
  virtual bool isPopupVisible() const = 0;
  /// The pointing hand or the system's arrow.
  virtual void setHand(SurfaceName surface, bool hand) = 0;
  /// Starts the timer anew; its messages come until it is killed.
  virtual void SetTimer() = 0;
  virtual void KillTimer() = 0;
  /// The surface's leave message is to come once.
  virtual void StartLeaveTracking(SurfaceName surface) = 0;
  virtual void ShowToolTip(const ToolTip& tip) = 0;
  virtual void DestroyToolTip() = 0;
};

}  // namespace toolbar
