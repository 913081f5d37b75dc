#include "progressbar/caption.h"

#include <array>
#include <cmath>
#include <iterator>

#include "drawing/fonts.h"
#include "drawing/raster_text.h"
#include "drawing/system_colours.h"
#include "platform/numbers.h"
#include "progressbar/palettes.h"

namespace progressbar {

namespace {

enum TextStyles { ShowsValue = 1, ShowsPercent = 2, ShowsText = 3 };

constexpr quint32 Shade = 0x808080;

/// A copy of the text that an effect draws under the caption.
struct Copy {
  enum Colors { None, Effect, Grey } color = None;
  int dx = 0;
  int dy = 0;
};

/// The copies of each effect in the order of drawing. Effects count from 1.
constexpr std::array<Copy, 4> Effects[] = {
    {},
    {{{Copy::Effect, -1, -1}, {Copy::Grey, 1, 1}}},
    {{{Copy::Effect, 1, 1}, {Copy::Grey, -1, 0}}},
    {{{Copy::Effect, 1, 0}, {Copy::Effect, -1, 0}, {Copy::Effect, 0, -1}, {Copy::Effect, 0, 1}}},
    {{{Copy::Effect, 1, 1}}},
};
static_assert(std::size(Effects) == 5, "an effect was added or lost");

constexpr int Rows = 3;
constexpr int LastAlignment = 9;

}  // namespace

QString captionText(const Properties& bar, double percent) {
  switch (bar.TextStyle) {
    case ShowsValue:
      return QString::number(bar.Value);
    case ShowsPercent:
      return platform::numberText(percent) + u'%';
    case ShowsText:
      return bar.Text;
    default:
      return {};
  }
}

std::optional<QPoint> captionPlace(int alignment, const QSize& bar, const QSize& caption) {
  if (alignment < 1 || alignment > LastAlignment) return std::nullopt;
  const auto centred = [](int outer, int inner) { return outer / 2.0 - inner / 2.0 - 1; };
  const double columns[] = {1, centred(bar.width(), caption.width()), bar.width() - 3.0 - caption.width()};
  const double rows[] = {0, centred(bar.height(), caption.height()), bar.height() - 1.0 - caption.height()};
  const QPointF place(columns[(alignment - 1) / Rows], rows[(alignment - 1) % Rows]);
  return QPoint(static_cast<int>(std::lrint(place.x())), static_cast<int>(std::lrint(place.y())));
}

void paintCaption(drawing::Raster& raster, const Properties& bar, const QString& text) {
  if (text.isEmpty() || bar.TextEffect < 1 || bar.TextEffect > std::ssize(Effects)) return;
  drawing::TextPen pen(raster, drawing::drawnFont(bar.TextFont));
  const std::optional<QPoint> place = captionPlace(bar.TextAlignment, raster.rect().size(), pen.sizeOf(text));
  if (!place) return;
  const auto shown = [&](quint32 color) { return bar.Enabled ? color : greyOf(color); };
  const auto print = [&](int dx, int dy, quint32 color) {
    pen.Print(text, place->x() + dx, place->y() + dy, drawing::colorOf(color).rgb());
  };
  for (const Copy& copy : Effects[bar.TextEffect - 1]) {
    if (copy.color != Copy::None)
      print(copy.dx, copy.dy, copy.color == Copy::Grey ? Shade : shown(bar.TextEffectColor));
  }
  print(0, 0, shown(bar.TextForeColor));
}

}  // namespace progressbar
