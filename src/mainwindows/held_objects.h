#pragma once

#include <memory>
#include <vector>

#include "editing/guides.h"
#include "editing/held_numbers.h"
#include "mainwindows/trial_picture.h"
#include "platform/status_line.h"
#include "renderer/trial_values.h"

namespace mainwindows {

class Form1;

/// What the hand on the preview holds: the selected object, and with it the others of its group while they are moved.
/// Picture, mark and frames show them with numbers on trial, until those are committed as one edit or given up.
class HeldObjects {
 public:
  explicit HeldObjects(Form1& form) : form_(form), trial_(form) {}

  /// Takes the objects. A button takes its texts along. Of what can't be moved or sized, `reports` has the reason
  /// reported. Returns whether any is held now.
  bool take(editing::Grip grip, bool reports);
  editing::Grip grip() const { return grip_; }
  /// Moves the grip on, from where it was taken or from where it is.
  void moveFromStart(const QPoint& movement);
  void moveOn(const QPoint& step);

  /// Where they were drawn when they were taken, together.
  QRect startPlace() const;
  /// What they can meet.
  std::vector<editing::Guide> guides() const;
  /// The numbers of the first one, and how many more there are.
  QString label() const;

  /// Draws a frame with the numbers on trial. Works only while no drawing runs.
  void showFrame();
  /// Something else has painted the preview.
  void forgetPicture() { trial_.forget(); }
  /// Commits what has changed.
  void commit();
  /// Puts all back as it was.
  void giveUp();
  /// Holds nothing any more, and shows nothing of that.
  void letGo();

 private:
  struct Held {
    QString name;
    QString section;
    QString heightKey;
    editing::HeldNumbers start;
    editing::HeldNumbers now;
  };

  bool isOfHand(const QString& section, const QString& owner) const;
  std::vector<renderer::TrialValues> changesToWrite();

  Form1& form_;
  editing::Grip grip_;
  std::vector<Held> held_;
  QStringList names_;                             ///< of the selected object and the group when they were taken
  std::unique_ptr<platform::ReportScope> scope_;  ///< keeps what is noted meanwhile for the commit
  TrialPicture trial_;
};

}  // namespace mainwindows
