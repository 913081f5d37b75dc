#include "editing/guides.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <QStringList>

namespace editing {
namespace {

constexpr int Reach = 4;  // pixels

/// A place along one axis: its first pixel, and the one behind its last.
struct Span {
  int first;
  int behind;
};

Span spanOf(const QRect& place, bool across) {
  if (across) return {place.left(), place.left() + place.width()};
  return {place.top(), place.top() + place.height()};
}

/// Where something can be met, and the pixel that shows it.
struct Stop {
  int at;
  int pixel;
};

/// The stops of a span: its ends and its centre, or only the end that a grip holds.
std::vector<Stop> stopsOf(const Span& span, int heldEnd = 0) {
  const int centre = (span.first + span.behind) / 2;
  std::vector<Stop> stops;
  if (heldEnd <= 0) stops.push_back({span.first, span.first});
  if (heldEnd == 0) stops.push_back({centre, centre});
  if (heldEnd >= 0) stops.push_back({span.behind, span.behind - 1});
  return stops;
}

/// A stop of a guide that is near one of what is dragged.
struct Meeting {
  int by = 0;  ///< the movement that brings both together
  int pixel = 0;
  const Guide* guide = nullptr;
};

}  // namespace

QString metText(const std::vector<GuideLine>& lines) {
  QStringList names;
  for (const GuideLine& line : lines) names += line.name;
  names.removeDuplicates();
  return names.isEmpty() ? QString() : QStringLiteral(", at ") + names.join(QStringLiteral(" and "));
}

Guides::Guides(std::vector<Guide> guides, const QRect& held, Grip grip)
    : guides_(std::move(guides)), held_(held), grip_(grip) {}

MetMovement Guides::met(const QPoint& movement, bool across, bool down) {
  MetMovement met{movement, {}};
  if (across && (!grip_.sizes() || grip_.across != 0)) meet(true, grip_.across, met.by.rx(), awayAcross_, met.lines);
  if (down && (!grip_.sizes() || grip_.down != 0)) meet(false, grip_.down, met.by.ry(), awayDown_, met.lines);
  // Each line reaches over both, where they come to lie.
  const QRect now = held_.translated(grip_.sizes() ? QPoint() : met.by);
  for (GuideLine& line : met.lines) {
    const Span own = spanOf(now, !line.upright);
    line.from = std::min(line.from, own.first);
    line.to = std::max(line.to, own.behind - 1);
  }
  return met;
}

void Guides::meet(bool across, int heldEnd, int& by, bool& away, std::vector<GuideLine>& lines) const {
  away = away || std::abs(by) > Reach;
  Meeting nearest;
  for (const Guide& guide : guides_) {
    for (const Stop& stop : stopsOf(spanOf(guide.place, across))) {
      for (const Stop& held : stopsOf(spanOf(held_, across), heldEnd)) {
        const int needed = stop.at - held.at;
        const int off = std::abs(needed - by);
        if (off > Reach || (needed == 0 && !away)) continue;
        if (nearest.guide != nullptr && off >= std::abs(nearest.by - by)) continue;
        nearest = {needed, stop.pixel, &guide};
      }
    }
  }
  if (nearest.guide == nullptr) return;
  by = nearest.by;
  const Span other = spanOf(nearest.guide->place, !across);
  lines.push_back({across, nearest.pixel, other.first, other.behind - 1, nearest.guide->name});
}

}  // namespace editing
