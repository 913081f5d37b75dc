#include "controls/look.h"

#include <QTextDocument>
#include <QToolTip>

#include "controls/style.h"
#include "platform/fonts.h"

namespace controls {

namespace {

constexpr int FontPixels = 11;
constexpr int LongestLine = 80;

}  // namespace

void ApplyLook(QApplication& application) {
  auto* style = new Style;
  application.setStyle(style);
  application.setPalette(style->standardPalette());
  QToolTip::setPalette(style->standardPalette());
  const QFont font = platform::ControlFont(QStringLiteral("MS Sans Serif"), FontPixels);
  application.setFont(font);
  QToolTip::setFont(font);
}

QString PlainToolTip(const QString& text) {
  if (text.size() <= LongestLine && !Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

}  // namespace controls
