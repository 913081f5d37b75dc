#include "controls/look.h"

#include <QTextDocument>
#include <QToolTip>

#include "controls/style.h"
#include "drawing/fonts.h"

namespace controls {

namespace {

constexpr int FontPixels = 11;
constexpr int LongestLine = 80;

}  // namespace

void applyLook(QApplication& application) {
  auto* style = new Style;
  application.setStyle(style);
  application.setPalette(style->standardPalette());
  QToolTip::setPalette(style->standardPalette());
  const QFont font = drawing::controlFont(QStringLiteral("MS Sans Serif"), FontPixels);
  application.setFont(font);
  QToolTip::setFont(font);
}

QString plainToolTip(const QString& text) {
  if (text.size() <= LongestLine && !Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

}  // namespace controls
