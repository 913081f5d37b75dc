#pragma once

#include <QLabel>

namespace controls {

/// A label of one line of plain text. A text that it has no room for ends in "..." and shows whole as a tool tip.
class CutLabel : public QLabel {
  Q_OBJECT

 public:
  explicit CutLabel(QWidget* parent);

  void setWhole(const QString& text);
  const QString& whole() const { return whole_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText();

  QString whole_;
};

}  // namespace controls
