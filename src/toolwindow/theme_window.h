#pragma once

#include <QPointer>
#include <QWidget>

namespace toolwindow {

/// A window about the whole theme that comes up beside the tool window, and goes with it. When it goes, who has had the
/// keyboard gets it back.
class ThemeWindow : public QWidget {
  Q_OBJECT

 public:
  explicit ThemeWindow(QWidget& tools);

 protected:
  /// Where the window may be with its frame: a size in there, moved to there, stays in sight.
  QRect room() const;
  /// Shows the window in front of the others.
  void bringUp();
  /// Hides the window, as Esc and its close box do.
  void goBack();
  /// Hides the window for another one. A window manager would give the keyboard to the main window.
  void hideFor(QWidget* other);

  /// The window is hidden. That it is minimized doesn't count: it comes back as it was.
  virtual void left() = 0;

  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> window_, control_;  ///< have had the keyboard
};

}  // namespace toolwindow
