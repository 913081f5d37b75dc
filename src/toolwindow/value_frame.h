#pragma once

#include <functional>

#include <QWidget>

#include "editing/commit.h"
#include "themefiles/key_table.h"
#include "toolwindow/placed_controls.h"
#include "toolwindow/tool_services.h"

class QPushButton;

namespace controls {
class ComboBox;
class TextBox;
}  // namespace controls

namespace toolwindow {

/// One of the editor frames: shows a value and proposes another one, which Update commits. It knows whether the user
/// has changed anything since the value was shown.
class ValueFrame : public QWidget {
  Q_OBJECT

 public:
  /// Shows the value of a row, whose key is of the group. Throws platform::Failure for a value that the frame can't
  /// show.
  void open(const themefiles::GroupRow& group, const QString& key, const QString& value);
  virtual editing::Proposal proposal() const = 0;
  /// Goes into the frame. What is typed there next, or was already, replaces the text or the number.
  void enter(const QString& typed);
  /// Whether the user has changed anything that isn't taken over.
  bool touched() const { return touched_; }
  /// What that is, as a commit would tell it; empty for nothing.
  QString pendingChanges() const;
  /// From here on what the frame shows counts as unchanged: it has been written, or dropped.
  void forgetChanges();

 Q_SIGNALS:
  /// Enter was pressed in a text box of the frame.
  void enterPressed();

 protected:
  ValueFrame(const ToolServices& services, QWidget* parent) : QWidget(parent), services(services) {}

  /// Shows a value of a key of the group.
  virtual void load(const themefiles::GroupRow& group, const QString& value) = 0;
  /// The control in which the user changes the value.
  virtual QWidget* entrance() const = 0;
  /// Watches what the user changes in a control.
  void watch(controls::TextBox& box);
  void watch(controls::ComboBox& list);
  void touch() { touched_ = true; }
  /// The frame shows another content by itself, with which the user's changes begin.
  void contentShown() { content_ = proposal().content; }

  QPushButton* iconButton(const QString& icon, const QString& toolTip = {});
  /// Connects a button to an operation that opens a dialog or changes colours and keys. The operation waits until no
  /// work is running. It is dropped if by then the window is closed or the list `shown`, whose entry it works on, shows
  /// another one.
  void onClick(QPushButton* button, const std::function<void()>& operation, const controls::ComboBox* shown = nullptr);
  void showErrorBox(const QString& text);
  /// Whether a colour or a key can have that name. Tells the user if it can't.
  bool acceptNewName(const QString& name);
  /// Asks whether the colour or key `name` is to be removed.
  bool confirmsRemoval(const QString& question, const QString& name, const QString& title);

  const ToolServices& services;

 private:
  themefiles::EditorFrame frame_{};
  QString key_;
  QString value_;    ///< the row's
  QString content_;  ///< of a reference, as it was shown
  bool touched_ = false;
};

}  // namespace toolwindow
