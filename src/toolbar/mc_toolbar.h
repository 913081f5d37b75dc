#pragma once

#include <vector>

#include <QVariant>
#include <QWidget>

#include "toolbar/painting.h"
#include "toolbar/toolbar_button.h"

namespace toolbar {

/// A strip of icon buttons, numbered from 1 from the left. They never take the focus.
class McToolBar : public QWidget {
  Q_OBJECT

 public:
  explicit McToolBar(QWidget* parent = nullptr);

  int Button_Count() const { return static_cast<int>(buttons_.size()); }
  /// Keeps the buttons that remain and adds new ones at the end; a count below 1 does nothing.
  void SetButton_Count(int count);
  /// A field of a button by its number (see button_values.h). Throw std::out_of_range for an index outside 1 to
  /// Button_Count.
  void SetButtonValue(int ButtonIndex, int PropertyID, const QVariant& Value);
  QVariant GetButtonValue(int ButtonIndex, int PropertyID) const;
  /// In pixels.
  int Height() const { return height(); }

  QSize sizeHint() const override;

 Q_SIGNALS:
  /// The left mouse button was pressed and released on this enabled button.
  void Click(int ButtonIndex);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// Number of the button at the place, 0 without one.
  int buttonAt(const QPointF& place) const;
  bool clickable(int number) const;
  void point(const Pointer& pointer);

  std::vector<ToolbarButton> buttons_;
  Pointer pointer_;
};

}  // namespace toolbar
