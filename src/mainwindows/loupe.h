#pragma once

#include <QLabel>
#include <QWidget>

namespace mainwindows {

class Form1;

/// The loupe: a small window with the pixels of the preview round the pointer, or round the object that the arrow keys
/// move, enlarged. It tells the place and the colour of the pixel in the middle, and leaves the focus where it is.
class Loupe : public QWidget {
 public:
  explicit Loupe(Form1& form);

  /// Shows the window or hides it.
  void toggle();
  /// Goes on to the next magnification; a hidden window is shown.
  void enlarge();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void open();
  void lookAt(const QPoint& pixel);
  void tell();

  Form1& form_;
  QLabel* const told_;  ///< place, colour and magnification
  QPoint pixel_;        ///< in the middle
  int times_ = 4;       ///< the magnification
};

}  // namespace mainwindows
