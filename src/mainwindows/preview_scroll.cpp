#include "mainwindows/preview_scroll.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QScrollArea>
#include <QScrollBar>

namespace mainwindows {
namespace {

using namespace std::chrono_literals;

constexpr auto StepTime = 40ms;
constexpr int StepLength = 12;  // pixels
constexpr int EdgeWidth = 16;   // pixels

/// -1 near the lower end of a side and before it, 1 near the upper one and behind it, 0 between.
int edgeAt(int pixel, int length) {
  if (pixel < EdgeWidth) return -1;
  return pixel >= length - EdgeWidth ? 1 : 0;
}

}  // namespace

PreviewScroll::PreviewScroll(QScrollArea& area, std::function<void(const QPoint& by)> scrolled)
    : area_(area), scrolled_(std::move(scrolled)), steps_(&area) {
  steps_.setObjectName(QStringLiteral("ScrollSteps"));
  steps_.setInterval(StepTime);
  steps_.callOnTimeout([this] {
    if (!scrollStep()) steps_.stop();
  });
}

void PreviewScroll::show(const QRect& place) {
  const QRect seen = place & area_.widget()->rect();
  if (seen.isEmpty()) return;
  const QPoint centre = seen.center();
  const QSize room = area_.viewport()->size();
  area_.ensureVisible(centre.x(), centre.y(), std::min(seen.width(), room.width()) / 2 + 1,
                      std::min(seen.height(), room.height()) / 2 + 1);
}

void PreviewScroll::dragAt(const QPoint& place) {
  place_ = place;
  if (!steps_.isActive()) steps_.start();
}

/// Returns whether there was anything to scroll.
bool PreviewScroll::scrollStep() {
  const QPoint before = area_.widget()->pos();
  const QPoint pointer = before + place_;
  const QSize room = area_.viewport()->size();
  for (const auto& [bar, edge] : {std::pair{area_.horizontalScrollBar(), edgeAt(pointer.x(), room.width())},
                                  std::pair{area_.verticalScrollBar(), edgeAt(pointer.y(), room.height())}}) {
    bar->setValue(bar->value() + edge * StepLength);
  }
  const QPoint by = before - area_.widget()->pos();
  if (by.isNull()) return false;
  place_ += by;
  scrolled_(by);
  return true;
}

}  // namespace mainwindows
