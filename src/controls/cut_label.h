#pragma once

#include <QLabel>

namespace controls {

/// One line of plain text. What has no room is cut with "..." and shows whole as a tool tip.
class CutLabel : public QLabel {
  Q_OBJECT

 public:
  explicit CutLabel(QWidget* parent);

  void setWhole(const QString& text);
  /// The text as it was set.
  const QString& whole() const { return whole_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText();

  QString whole_;
};

}  // namespace controls
