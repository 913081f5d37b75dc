#pragma once

#include <QMouseEvent>
#include <QObject>
#include <QSet>
#include <QTimer>

#include "controls/frame_pacer.h"
#include "mainwindows/hand_geometry.h"
#include "mainwindows/preview_picking.h"
#include "mainwindows/trial_picture.h"

class QKeyEvent;

namespace mainwindows {

class Form1;

/// Picking, moving and sizing on the preview, by the mouse and by the arrow keys. While the user drags, picture and
/// mark follow with values on trial. The end of the drag commits them as one edit.
class PreviewHand : public QObject {
 public:
  explicit PreviewHand(Form1& form);

  /// Whether an object is in hand, or a press may take it.
  bool holds() const { return stage_ != Stage::None; }
  /// Commits what the arrow keys have done, and gives up a drag. To be called before anything else happens.
  void settle();
  /// Gives up a drag: all is as before. To be called before a drawing, which paints over what the arrow keys show.
  void giveUpDrag();
  /// The next click picks the topmost object under it. To be called when another screen is listed.
  void forgetPlaces();
  /// Ends everything without a commit or a drawing. To be called when the theme is closed.
  void letGo();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Stage {
    None,
    Pressed,   ///< the button is down, and the mouse hasn't moved far
    Dragging,  ///< by the mouse
    Keys,      ///< arrow keys that aren't committed yet
  };
  /// The selected object as the preview has it.
  struct Selected {
    QString section;     ///< empty without one
    QString heightKey;   ///< empty for a text
    QRect place;         ///< of an object with a rectangle
    bool under = false;  ///< whether the pixel asked for lies in it
  };

  bool press(const QMouseEvent& event);
  void move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  bool keyPress(const QKeyEvent& event);
  void keyRelease(const QKeyEvent& event);
  void arrow(const QKeyEvent& event, const QPoint& step);
  void hover(const QPoint& place, bool free);
  bool pick(const QPoint& place);
  Selected selectedAt(const QPoint& place) const;
  bool take(const Selected& selected, Grip grip, bool tells);
  void showFrame();
  void commit();
  void giveUp();

  Form1& form_;
  PreviewPicking picking_;
  Stage stage_ = Stage::None;
  bool picksAtRelease_ = false;
  bool endedDrag_ = false;  ///< the last press gave a drag up, and stands for nothing else
  QPoint pressed_;          ///< where the button went down
  QPoint mouse_;            ///< where it is now
  QString section_;
  Grip grip_;
  HeldNumbers start_;
  HeldNumbers now_;
  TrialPicture trial_;
  QSet<int> heldKeys_;
  QTimer rest_;  ///< runs out when the keys have rested
  controls::FramePacer pacer_;
};

}  // namespace mainwindows
