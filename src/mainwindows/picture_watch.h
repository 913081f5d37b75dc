#pragma once

#include <QDeadlineTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include "renderer/render_account.h"

namespace mainwindows {

class Form1;
class PreviewHand;

/// Watches the pictures of the screen and all folders on the way to them that are there. When another program has
/// changed a picture and has come to rest, the screen is drawn. Only what the files are tells: this program's own
/// writes beside them draw nothing.
class PictureWatch : public QObject {
  Q_OBJECT

 public:
  PictureWatch(Form1& form, const PreviewHand& hand);

  /// The screen was drawn: watches what the drawing has looked for from now on.
  void drawn();
  /// Has the screen drawn if a picture isn't as the last drawing found it. Waits while an object is in hand, a dialog
  /// is open or a screen is being drawn.
  void look();
  /// Watches nothing any more; for the end of the theme.
  void letGo();

 protected:
  /// Watches the paths of the file system; gives those that can't be watched.
  virtual QStringList watch(const QStringList& paths) { return watcher_.addPaths(paths); }

 private:
  using Pictures = decltype(renderer::RenderAccount::pictures);

  bool differs() const;
  void rest();
  void watchAnew();
  void stopWatching();
  bool mustWait() const;

  Form1& form_;
  const PreviewHand& hand_;
  QFileSystemWatcher watcher_;
  Pictures pictures_;         ///< those watched, as the last drawing found them
  bool withoutSkin_ = false;  ///< the last drawing found no working copy of the skin, and so no names of pictures
  QTimer rest_{this};         ///< runs out when nothing has changed for a while
  QDeadlineTimer latest_;     ///< when it does at the latest
  bool toldOfLack_ = false;
};

}  // namespace mainwindows
