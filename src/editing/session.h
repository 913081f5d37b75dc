#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QString>
#include <QStringList>

#include "platform/status_line.h"
#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "themefiles/theme_search.h"

namespace editing {

/// Who has chosen an object: the user, or the list that selects its first one when it is filled.
enum class Chooser { User, List };

/// Why the mark is placed: its object was chosen by the list that was filled or by the user, or a commit has changed
/// it.
enum class MarkReason { Listed, Picked, Committed };

/// The session of the open theme: what is chosen in it, and who has to know when something becomes of that. It holds no
/// values of the theme: whoever needs one reads the working copies. The windows show what the signals tell; each signal
/// is a step of the operation that emits it, so they have to be connected directly.
class Session : public QObject {
  Q_OBJECT

 public:
  Session(themefiles::ModuleState& state, platform::StatusLine& status);

  themefiles::ModuleState& state() const { return state_; }
  platform::StatusLine& status() const { return status_; }

  /// A theme has been opened. `objects` is the list of objects that follows the screen, until end().
  void begin(themefiles::TagList& objects);
  /// The theme is left: nothing is chosen any more.
  void end();
  bool isOpen() const { return objects_ != nullptr; }

  /// The screen's name. Choosing one doesn't list its objects yet.
  const QString& screen() const { return screen_; }
  void chooseScreen(const QString& name) { screen_ = name; }
  /// Fills the list with the objects of the chosen screen, and chooses the one named `kept`, or the first if that is
  /// gone. One that the user picks in the meantime stays chosen. Calls `yield` after each; throws what that throws.
  void listObjects(const QString& kept, const std::function<void()>& yield);
  /// Whether the list has all objects of the chosen screen.
  bool listIsComplete() const { return listed_ && *listed_ == screen_; }

  /// The list of objects. Only with a theme open.
  const themefiles::TagList& objects() const { return *objects_; }
  /// The chosen object as it is listed; empty without one.
  QString object() const;
  /// The section that the object's values stand in; empty without an object.
  QString section() const;
  /// The chosen row of the object's values; -1 without one.
  int row() const { return row_; }
  void chooseRow(int row) { row_ = row; }
  /// Chooses the object of a row as the user does.
  void pickObject(int row);
  /// An object has been chosen in the list: tells its values and has its mark placed. Draws nothing.
  void objectClicked(Chooser chooser);

  /// Further objects beside the chosen one, in the order in which they were added. They are a group with it until the
  /// next choice or listing.
  const QStringList& members() const { return members_; }
  /// Adds an object of the list to the group, or takes it out. The chosen one stays.
  void toggleMember(const QString& name);
  /// Leaves only the chosen object.
  void endGroup();

  /// Goes to the screen, the object and the row of a search hit as clicks on them would. The present screen isn't
  /// chosen again. Object and row are picked when the screen's list is complete, unless the user has chosen something
  /// else by then. What is gone is reported.
  void goTo(const themefiles::Hit& hit);

  /// Something else is about to happen: what is done by hand on the preview comes to its end.
  void settle() { Q_EMIT settling(); }

 Q_SIGNALS:
  void settling();
  /// The theme has been left.
  void ended();
  /// A search hit leads to this screen, or to this row of the chosen object.
  void screenWanted(const QString& name);
  void rowWanted(const themefiles::Hit& hit);
  /// Another object has been chosen, and has these values.
  void valuesRead(const std::vector<themefiles::ValueRow>& rows);
  /// All about the object that has been chosen has been told.
  void objectChosen();
  /// Other objects are in the group with it.
  void membersChanged();
  /// A value of the chosen object has been written: into this row of its values, or into the first row of the key (-1).
  void valueWritten(int row, const QString& key, const QString& value);
  /// The theme has changes that Save would take over.
  void changed();
  /// The theme's colours are other ones, or the program's by another scheme.
  void colorsChanged();
  /// The screen is to be drawn, the mark to be placed on the chosen object.
  void drawWanted();
  void markWanted(editing::MarkReason reason);
  /// What differs from the saved state may be something else now.
  void differencesDue();
  /// An edit is over, successful or not. As long as `scope` is kept, what is reported belongs to it.
  void edited(const std::shared_ptr<platform::ReportScope>& scope);

 private:
  void chooseObject(Chooser chooser);
  void pickPendingHit();
  int rowOf(const QString& object) const;

  themefiles::ModuleState& state_;
  platform::StatusLine& status_;
  themefiles::TagList* objects_ = nullptr;
  QString screen_;
  std::optional<QString> listed_;  ///< the screen whose list is complete
  int row_ = -1;
  QStringList members_;
  std::optional<themefiles::Hit> pendingHit_;
  bool picking_ = false;  ///< the list's Click isn't the user's
};

}  // namespace editing
