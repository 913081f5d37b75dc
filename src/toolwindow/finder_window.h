#pragma once

#include <vector>

#include <QPointer>
#include <QWidget>

#include "controls/list_box.h"
#include "controls/text_box.h"
#include "themefiles/theme_search.h"

namespace toolwindow {

class Form2;

/// The window that finds screens and objects of the open theme by what stands in them. It stays until the user has
/// chosen a hit, presses Esc or closes it, and goes with the tool window.
class FinderWindow : public QWidget {
  Q_OBJECT

 public:
  explicit FinderWindow(Form2& form);

  controls::TextBox* Line;  ///< what is looked for
  controls::ListBox* List;  ///< the hits

  /// Shows the window with the focus in the line.
  void open();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void search();
  void accept();
  void hideFor(QWidget* window);
  void goBack();

  Form2& form_;
  std::vector<themefiles::Hit> hits_;
  QPointer<QWidget> window_, control_;  ///< had the focus before
};

/// Shows the finder of the tool window.
void showFinder(Form2& form);

}  // namespace toolwindow
