#pragma once

#include <QMouseEvent>
#include <QObject>

#include "controls/frame_pacer.h"
#include "mainwindows/arrow_keys.h"
#include "mainwindows/held_objects.h"
#include "mainwindows/preview_naming.h"
#include "mainwindows/preview_picking.h"
#include "mainwindows/preview_scroll.h"

class QKeyEvent;

namespace mainwindows {

class Form1;

/// Picking, grouping, moving and sizing on the preview, by the mouse and by the arrow keys. While the user drags, what
/// is held meets the guides that it comes near, and the picture follows. The end of the drag commits it as one edit.
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
  void forgetPlaces() { picking_ = {}; }
  /// Another object has been chosen: scrolls to it, unless it was clicked on the preview. Tells where it is if that is
  /// out of sight.
  void showChosen();
  /// Whether a drag meets guides; they are on at the program's start.
  bool guidesOn() const { return guidesOn_; }
  void switchGuides() { guidesOn_ = !guidesOn_; }
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

  bool byMouse() const { return stage_ == Stage::Pressed || stage_ == Stage::Dragging; }
  bool menuAsked(const QWidget& watched);
  bool press(const QMouseEvent& event);
  void move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  bool keyPress(const QKeyEvent& event);
  void keyRelease(const QKeyEvent& event);
  void commitKeys();
  void arrow(const QKeyEvent& event, const ArrowStep& step);
  void drag(Qt::KeyboardModifiers keys);
  void hover(const QPoint& place, bool free);
  bool pick(const QPoint& place);
  void join(const QPoint& place);
  bool startDrag();
  void showFrame();
  void end();
  void commit();
  void giveUp();

  Form1& form_;
  PreviewPicking picking_;
  PreviewNaming naming_{form_, picking_};
  QString outside_;  ///< what is reported of a place out of sight
  Stage stage_ = Stage::None;
  bool onHeld_ = false;     ///< the button went down on the selected object or on another one of its group
  bool joins_ = false;      ///< without a movement the press adds an object to the group or takes it out
  bool endedDrag_ = false;  ///< the last press gave a drag up, and stands for nothing else
  bool picks_ = false;      ///< an object is being chosen by a click
  QPoint pressed_;          ///< where the button went down
  QPoint mouse_;            ///< where it is now
  Qt::KeyboardModifiers keys_;
  HeldObjects held_;
  bool guidesOn_ = true;
  editing::Guides guides_;
  std::vector<editing::GuideLine> met_;
  PreviewScroll scroll_;
  ArrowKeys arrows_;
  controls::FramePacer pacer_;
};

}  // namespace mainwindows
