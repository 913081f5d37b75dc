#pragma once

#include <optional>

#include <QString>

namespace mainwindows {

class Form1;

/// Lists and draws the chosen screen. The work queue calls it.
class ScreenRefresh {
 public:
  explicit ScreenRefresh(Form1& form) : form_(form) {}

  /// Fills the list of the chosen screen.
  void list();
  /// Draws the chosen screen.
  void draw();

  /// Has the screen listed and drawn anew, with all pictures read from their files. The object and the selected button
  /// stay chosen if they are still there.
  void refresh();
  /// The user has chosen another button, which is the one that stays.
  void keepButton(quint8 button);
  /// Forgets what was to stay chosen; for the end of the theme.
  void forget() { kept_.reset(); }

 private:
  struct Choices {
    QString screen;
    QString object;
    quint8 button = 1;
  };

  void selectButtonAgain(quint8 button);

  Form1& form_;
  std::optional<Choices> kept_;  ///< what stays chosen while a refresh is on its way
};

}  // namespace mainwindows
