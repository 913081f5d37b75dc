#include "toolbar/painting.h"

namespace toolbar {

namespace {

constexpr QColor Background(128, 128, 128);
constexpr QColor Lit(255, 255, 255, 90);
constexpr QColor Sunken(0, 0, 0, 60);
constexpr int IconSize = 16;

void PaintButton(QPainter& painter, const QRect& place, const ToolbarButton& button, bool over, bool held) {
  const bool sunken = button.Pressed || (over && held);
  if (button.Enabled && (over || sunken)) painter.fillRect(place.adjusted(1, 1, -1, -1), sunken ? Sunken : Lit);
  const QRect icon(place.center() - QPoint(IconSize / 2 - 1, IconSize / 2 - 1), QSize(IconSize, IconSize));
  button.Icon.paint(&painter, sunken ? icon.translated(1, 1) : icon, Qt::AlignCenter,
                    button.Enabled ? QIcon::Normal : QIcon::Disabled);
}

}  // namespace

void Paint(QPainter& painter, const QRect& strip, const std::vector<ToolbarButton>& buttons, const Pointer& pointer) {
  painter.fillRect(strip, Background);
  int number = 0;
  for (const ToolbarButton& button : buttons) {
    ++number;
    const QRect place((number - 1) * ButtonSize, 0, ButtonSize, ButtonSize);
    PaintButton(painter, place, button, pointer.Over == number, pointer.Held == number);
  }
}

}  // namespace toolbar
