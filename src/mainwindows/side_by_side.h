#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "controls/idle_steps.h"
#include "renderer/prepared_pictures.h"
#include "toolwindow/theme_window.h"

class QLabel;
class QListWidget;
class QScrollArea;
class QStackedWidget;

namespace mainwindows {

class Form1;
class VariantDrawing;

/// The present screen as each skin and each language of the theme would draw it, small, with the button and the scheme
/// in force. A click or Enter shows one at its own size. The pictures are drawn when the program is idle, and anew
/// after each drawing of the preview; until then the last ones stay.
class SideBySide : public toolwindow::ThemeWindow {
  Q_OBJECT

 public:
  explicit SideBySide(Form1& form);
  ~SideBySide() override;

  /// Shows the window, with the focus on the pictures.
  void open();
  /// Has the pictures drawn anew, if the window is open.
  void renew();

 protected:
  void left() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// A skin with the open language, or a language with the open skin.
  struct Variant {
    QString name;
    QString skinFile;
    QString languageFile;
  };

  void listVariants();
  void drawFirst(int variant);
  bool step();
  void show(int variant);
  void enlarge(int variant);
  void showSmall();
  void tell();

  Form1& form_;
  QStackedWidget* pages_;
  QListWidget* list_;  ///< the small pictures
  QScrollArea* area_;  ///< has the large one
  QLabel* large_;
  int enlarged_ = -1;
  std::vector<Variant> variants_;
  std::vector<QImage> pictures_;  ///< by variant
  std::deque<int> waiting_;       ///< variants that are to be drawn
  std::unique_ptr<VariantDrawing> drawing_;
  renderer::PreparedPictures prepared_;
  controls::IdleSteps steps_;
};

/// Shows the window of the open theme.
void showSideBySide(Form1& form);
/// The preview has been drawn.
void renewSideBySide(const Form1& form);

}  // namespace mainwindows
