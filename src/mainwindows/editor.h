#pragma once

#include "mainwindows/command.h"
#include "mainwindows/group_frames.h"
#include "mainwindows/loupe.h"
#include "mainwindows/main_window.h"
#include "mainwindows/picture_watch.h"
#include "mainwindows/preview_hand.h"
#include "mainwindows/screen_refresh.h"
#include "mainwindows/theme_review.h"

namespace mainwindows {

/// The whole editor: the main window with all that works on it, and their events.
class Editor {
 public:
  /// The window isn't shown yet.
  explicit Editor(const MainServices& services);
  Q_DISABLE_COPY_MOVE(Editor)

  Form1 form;

 private:
  void connectQueue();
  void connectCommands();
  void connectLists();
  void connectPreview();
  void connectSession();
  void run(const CommandRow& row);
  void end();

  PreviewHand hand_{form};
  GroupReport groupReport_{form};
  PictureWatch watch_{form, hand_};
  ScreenRefresh refresh_{form};
  Loupe& loupe_ = *new Loupe(form);  ///< its parent is the main window
  ThemeReview review_{form.session(), form.queue()};
  const CommandTargets targets_{.form = form, .refresh = refresh_, .loupe = loupe_, .review = review_, .hand = hand_};
};

}  // namespace mainwindows
