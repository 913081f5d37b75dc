#pragma once

#include <functional>

#include "controls/list_box.h"
#include "controls/text_box.h"
#include "toolwindow/list_source.h"
#include "toolwindow/theme_window.h"

class QPushButton;

namespace toolwindow {

class Form2;

/// The window in which a question about the whole theme is answered by a list. A line narrows the list. It stays until
/// the user has gone to a row, presses Esc or closes it. With a source that does something with rows, several can be
/// chosen, and it has a button and a menu for that.
class ListWindow : public ThemeWindow {
  Q_OBJECT

 public:
  /// Owns the source.
  ListWindow(Form2& form, ListSource* source);

  controls::TextBox* const Line;  ///< what is looked for
  controls::ListBox* const List;  ///< the rows that have it
  /// Does something with the chosen rows; null for a source that has nothing of the kind.
  QPushButton* action() const { return action_; }

  /// Shows the window with the focus in the line.
  void open();

 protected:
  void left() override { source_.end(); }
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addAction();
  void search();
  void showRows(int chosen);
  void renew();
  void accept();
  void act();
  void showMenu(const QPoint& place);
  void updateAction();

  Form2& form_;
  ListSource& source_;
  QPushButton* action_ = nullptr;
};

/// Shows the tool window's list window of that name. `source` makes what it shows when there is none yet.
void showListWindow(Form2& form, const QString& name, const std::function<ListSource*()>& source);

}  // namespace toolwindow
