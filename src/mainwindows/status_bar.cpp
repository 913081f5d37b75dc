#include "mainwindows/status_bar.h"

#include "controls/look.h"
#include "controls/twips.h"

namespace mainwindows {
namespace {

constexpr double MouseWidth = 1700;  // twips
constexpr int Gap = 2;

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QWidget(parent) {
  for (QLabel*& panel : panels_) {
    panel = new QLabel(this);
    panel->setTextFormat(Qt::PlainText);
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panel->setIndent(3);
  }
}

void StatusBar::SetPanel(int panel, const QString& text) {
  texts_[panel - 1] = text;
  showText(panel - 1);
}

void StatusBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int mouse = controls::ToPixels(MouseWidth);
  panels_[0]->setGeometry(0, Gap, width() - mouse - Gap, height() - Gap);
  panels_[1]->setGeometry(width() - mouse, Gap, mouse, height() - Gap);
  showText(0);
  showText(1);
}

void StatusBar::showText(int panel) {
  QLabel& label = *panels_[panel];
  const QString& text = texts_[panel];
  const QString shown = label.fontMetrics().elidedText(text, Qt::ElideRight, label.contentsRect().width() - 6);
  label.setText(shown);
  label.setToolTip(shown == text ? QString() : controls::PlainToolTip(text));
}

}  // namespace mainwindows
