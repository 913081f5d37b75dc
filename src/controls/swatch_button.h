#pragma once

#include <QPushButton>

namespace controls {

/// A graphical button whose face is one colour.
class SwatchButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  const QColor& BackColor() const { return backColor_; }
  /// The colour that the button shows.
  void SetBackColor(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor backColor_;
};

}  // namespace controls
