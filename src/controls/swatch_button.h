#pragma once

#include <QContextMenuEvent>
#include <QPushButton>

namespace controls {

/// A button whose face is filled with one colour.
class SwatchButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  const QColor& BackColor() const { return backColor_; }
  /// The colour that the button shows.
  void SetBackColor(const QColor& color);

 Q_SIGNALS:
  /// The user has asked for the button's menu, by the mouse or the keyboard.
  void menuAsked(const QPoint& place);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor backColor_;
};

}  // namespace controls
