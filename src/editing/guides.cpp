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

int centreOf(const Span& span) {
  return (span.first + span.behind) / 2;
}

}  // namespace

QString metText(const std::vector<GuideLine>& lines) {
  QStringList names;
  for (const GuideLine& line : lines) names += line.name;
  names.removeDuplicates();
  return names.isEmpty() ? QString() : QStringLiteral(", at ") + names.join(QStringLiteral(" and "));
}

Guides::Guides(std::vector<Guide> guides, const QRect& held, Grip grip)
    : guides_(std::move(guides)),
      held_(held),
      grip_(grip),
      across_(axisOf(true, grip.across)),
      down_(axisOf(false, grip.down)) {}

/// The ends and centres of the guides, and those of what is held, or only the end that a grip holds.
Guides::Axis Guides::axisOf(bool across, int heldEnd) const {
  Axis axis;
  if (grip_.sizes() && heldEnd == 0) return axis;
  for (size_t guide = 0; guide < guides_.size(); ++guide) {
    const Span span = spanOf(guides_[guide].place, across);
    axis.stops.push_back({span.first, span.first, guide});
    axis.stops.push_back({centreOf(span), centreOf(span), guide});
    axis.stops.push_back({span.behind, span.behind - 1, guide});
  }
  const Span span = spanOf(held_, across);
  if (heldEnd <= 0) axis.held.push_back(span.first);
  if (heldEnd == 0) axis.held.push_back(centreOf(span));
  if (heldEnd >= 0) axis.held.push_back(span.behind);
  return axis;
}

MetMovement Guides::met(const QPoint& movement, bool across, bool down) {
  MetMovement met{movement, {}};
  if (across) meet(across_, true, met.by.rx(), met.lines);
  if (down) meet(down_, false, met.by.ry(), met.lines);
  // Each line reaches over both, where they come to lie.
  const QRect now = held_.translated(grip_.sizes() ? QPoint() : met.by);
  for (GuideLine& line : met.lines) {
    const Span own = spanOf(now, !line.upright);
    line.from = std::min(line.from, own.first);
    line.to = std::max(line.to, own.behind - 1);
  }
  return met;
}

void Guides::meet(Axis& axis, bool across, int& by, std::vector<GuideLine>& lines) const {
  axis.away = axis.away || std::abs(by) > Reach;
  const Stop* nearest = nullptr;
  int needed = 0;
  for (const Stop& stop : axis.stops) {
    for (const int held : axis.held) {
      const int way = stop.at - held;
      const int off = std::abs(way - by);
      if (off > Reach || (way == 0 && !axis.away)) continue;
      if (nearest != nullptr && off >= std::abs(needed - by)) continue;
      nearest = &stop;
      needed = way;
    }
  }
  if (nearest == nullptr) return;
  by = needed;
  const Guide& guide = guides_[nearest->guide];
  const Span other = spanOf(guide.place, !across);
  lines.push_back({across, nearest->pixel, other.first, other.behind - 1, guide.name});
}

}  // namespace editing
