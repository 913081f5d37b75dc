#include "controls/cut_label.h"

#include <algorithm>

#include "controls/look.h"
#include "controls/shown_text.h"

namespace controls {

CutLabel::CutLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

void CutLabel::setWhole(const QString& text) {
  whole_ = shownText(text);
  showText();
}

void CutLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  showText();
}

void CutLabel::showText() {
  const int room = contentsRect().width() - 2 * std::max(indent(), 0);
  const QString shown = fontMetrics().elidedText(whole_, Qt::ElideRight, room);
  setText(shown);
  setAccessibleName(whole_);
  setToolTip(shown == whole_ ? QString() : plainToolTip(whole_));
}

}  // namespace controls
