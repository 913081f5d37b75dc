#pragma once

#include <QLabel>
#include <QWidget>

namespace mainwindows {

/// A status bar of two sunken panels: messages, and the place of the mouse. A text that its panel cuts shows whole as a
/// tool tip.
class StatusBar : public QWidget {
  Q_OBJECT

 public:
  explicit StatusBar(QWidget* parent);

  void SetPanel(int panel, const QString& text);  ///< panels count from 1
  const QString& Panel(int panel) const { return texts_[panel - 1]; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText(int panel);

  QString texts_[2];
  QLabel* panels_[2];
};

}  // namespace mainwindows
