#include "progressbar/painting.h"

#include <cmath>

#include "platform/numbers.h"
#include "platform/system_colors.h"

namespace progressbar {

namespace {

enum TextStyles { ShowsValue = 1, ShowsPercent = 2, ShowsText = 3 };

QString Caption(const Properties& bar, double percent) {
  switch (bar.TextStyle) {
    case ShowsValue:
      return QString::number(bar.Value);
    case ShowsPercent:
      return platform::NumberText(percent) + u'%';
    case ShowsText:
      return bar.Text;
    default:
      return {};
  }
}

}  // namespace

void Paint(QPainter& painter, const QSize& size, const Properties& bar) {
  const double percent = bar.Value * 100.0 / bar.max;
  const int filled = static_cast<int>(std::lrint(percent * size.width() / 100));
  painter.fillRect(QRect(QPoint(), size), platform::ColorOf(bar.PBSCustomeColor2));
  painter.fillRect(0, 0, filled, size.height(), platform::ColorOf(bar.PBSCustomeColor1));
  painter.setFont(bar.TextFont);
  painter.setPen(platform::ColorOf(bar.TextForeColor));
  painter.drawText(QRect(QPoint(), size), Qt::AlignCenter | Qt::TextSingleLine, Caption(bar, percent));
}

}  // namespace progressbar
