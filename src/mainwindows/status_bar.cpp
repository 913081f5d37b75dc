#include "mainwindows/status_bar.h"

#include "controls/twips.h"

namespace mainwindows {
namespace {

constexpr double MouseWidth = 1700;  // twips
constexpr int Gap = 2;

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QWidget(parent) {
  for (controls::CutLabel*& panel : panels_) {
    panel = new controls::CutLabel(this);
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panel->setIndent(3);
  }
}

void StatusBar::setPanel(int panel, const QString& text) {
  panels_[panel - 1]->setWhole(text);
}

void StatusBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int mouse = controls::toPixels(MouseWidth);
  panels_[0]->setGeometry(0, Gap, width() - mouse - Gap, height() - Gap);
  panels_[1]->setGeometry(width() - mouse, Gap, mouse, height() - Gap);
}

}  // namespace mainwindows
