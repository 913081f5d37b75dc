#pragma once

#include <vector>

#include <QStaticText>
#include <QTimer>
#include <QWidget>

#include "controls/frame_pacer.h"
#include "drawing/surface.h"
#include "editing/guides.h"
#include "renderer/highlight_cursor.h"

namespace mainwindows {

/// The preview: shows the surface, one theme unit a pixel, and the mark HL over it. The mark is painted over the
/// picture and not into it; moving and blinking it costs no render.
class Workspace : public QWidget, public renderer::CursorMark {
  Q_OBJECT

 public:
  explicit Workspace(QWidget* parent);

  drawing::Surface& surface() { return surface_; }
  /// Shows what has been drawn on the surface since the last call, with the next paint event.
  void Refresh();
  /// The same, at most once in 16 ms. For long work that draws on the surface bit by bit.
  void refreshPaced() { pacer_.request(); }

  void SetLeft(double left) override;
  void SetTop(double top) override;
  void SetWidth(double width) override;
  void SetHeight(double height) override;
  void SetVisible(bool visible) override;
  void setBlinking(bool blinking) override;

  /// Shows a label beside a pixel of the surface and tells its text to assistive programs. An empty text hides it.
  void setHandLabel(const QString& text, const QPoint& place = {});

  /// Shows thin still frames round places, and thin lines where something is met.
  void setGroupFrames(const std::vector<QRect>& frames);
  void setGuideLines(const std::vector<editing::GuideLine>& lines);

  /// The mark as it stands, in pixels of the surface.
  const QRectF& mark() const { return mark_; }
  bool markVisible() const { return markVisible_; }
  /// The pixels that the mark covers, at least one each way.
  QRect markRect() const;
  bool blinking() const { return timer1_.isActive(); }

 Q_SIGNALS:
  /// The picture shows something else.
  void refreshed();
  /// The arrow keys have brought the selected object to a pixel of the surface.
  void watched(const QPoint& pixel);
  /// The mouse has moved to a place in pixels of the surface.
  void MouseMove(float X, float Y);
  /// The user wants the menu at this place of the screen.
  void menuAsked(const QPoint& place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Timer1_Timer();
  void updateMark();
  QRect labelRect(const QPoint& place) const;
  void paintMark(QPainter& painter) const;
  void paintGroup(QPainter& painter) const;
  void paintLines(QPainter& painter) const;
  void paintLabel(QPainter& painter) const;
  void paintFocus(QPainter& painter) const;

  drawing::Surface surface_;
  controls::FramePacer pacer_;
  QTimer timer1_{this};
  QRectF mark_;
  bool markVisible_ = false;
  bool blinkPhase_ = false;
  QColor borderColor_;
  std::vector<QRect> groupFrames_;
  std::vector<editing::GuideLine> guideLines_;
  QStaticText handLabel_;  ///< laid out when it is set: a frame of a drag has no time for that when it is painted
  QRect label_;            ///< where that stands
};

}  // namespace mainwindows
