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
}

namespace toolwindow {

/// One of the editor frames: shows a value and proposes another one, which Update commits.
class ValueFrame : public QWidget {
  Q_OBJECT

 public:
  /// Shows a value of a key of the group. Throws platform::Failure for a value that the frame can't show.
  virtual void load(const themefiles::GroupRow& group, const QString& value) = 0;
  virtual editing::Proposal proposal() const = 0;

 Q_SIGNALS:
  /// Enter was pressed in a control of the frame.
  void updateWanted();

 protected:
  ValueFrame(const ToolServices& services, QWidget* parent) : QWidget(parent), services(services) {}

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
};

}  // namespace toolwindow
