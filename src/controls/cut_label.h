#pragma once

#include <QLabel>

namespace controls {

/// A line of plain text. A text that is too long is cut with "...", and the tool tip shows it whole.
class CutLabel : public QLabel {
  Q_OBJECT

 public:
  explicit CutLabel(QWidget* parent);

  void setWhole(const QString& text);
  /// The text as it was set, uncut.
  const QString& whole() const { return whole_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText();

  QString whole_;
};

}  // namespace controls
