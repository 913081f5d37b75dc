#pragma once

#include <QWidget>

#include "controls/cut_label.h"

namespace mainwindows {

/// A status bar of two sunken panels: messages, and the place of the mouse. A text that its panel cuts shows whole as a
/// tool tip.
class StatusBar : public QWidget {
  Q_OBJECT

 public:
  explicit StatusBar(QWidget* parent);

  void setPanel(int panel, const QString& text);  ///< panels count from 1
  const QString& panel(int panel) const { return panels_[panel - 1]->whole(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  controls::CutLabel* panels_[2];
};

}  // namespace mainwindows
