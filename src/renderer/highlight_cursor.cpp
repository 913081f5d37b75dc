#include "renderer/highlight_cursor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"
#include "themefiles/mark_record.h"

namespace renderer {
namespace {

using themefiles::MarkKey;
using themefiles::MarkX;
using themefiles::MarkY;

/// The length of "TEXT1", which a child text's name has after its button's name.
constexpr int ChildEnding = 5;
constexpr double LineHeightFactor = 1.5;

constexpr double AnyPlace = std::numeric_limits<double>::lowest();

/// What a frame takes of a key, and the least that it takes.
struct Side {
  const MarkKey& key;
  void (CursorMark::*set)(double number);
  double least;
};
constexpr auto Sides = std::to_array<Side>({{MarkX, &CursorMark::SetLeft, AnyPlace},
                                            {MarkY, &CursorMark::SetTop, AnyPlace},
                                            {themefiles::MarkW, &CursorMark::SetWidth, 0},
                                            {themefiles::MarkH, &CursorMark::SetHeight, 0}});

/// The number of a key's text. Throws Failure if it is infinite or below `least`.
double measureOf(const MarkKey& key, const QString& text, double least = AnyPlace) {
  const double number = platform::numberOf(text);
  if (!std::isfinite(number) || number < least) throw platform::Failure(QStringLiteral("%1 is %2").arg(key.key, text));
  return number;
}

void showMark(CursorMark& mark) {
  mark.setBlinking(true);
  mark.SetVisible(true);
}

void drawFrame(const themefiles::CursorRecord& record, CursorMark& mark) {
  for (const Side& side : Sides) (mark.*side.set)(measureOf(side.key, record.*side.key.measure, side.least));
  showMark(mark);
}

/// Sets the font for measuring. It isn't the font that the renderer draws with.
void setMeasuringFont(const themefiles::CursorRecord& record, drawing::Surface& workspace) {
  if (record.Font == 0) workspace.SetFontName(QStringLiteral("Courier New"));
  if (record.Font == 1) workspace.SetFontName(QStringLiteral("Arial Black"));
  workspace.SetFontSize(record.Size);
}

void drawTextLine(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                  CursorMark& mark, const std::vector<TrialValues>& trial) {
  const themefiles::CursorRecord& record = state.CursorRect;
  double x = measureOf(MarkX, record.X);
  double y = measureOf(MarkY, record.Y);
  const QString tag = tags.ListIndex() < 0 ? QString() : tags.List(tags.ListIndex());
  const QString upper = platform::upperCase(tag);
  if (upper.contains(u"BUTTON") || upper.contains(u"NAME")) {
    const QString parent = tag.chopped(std::min<qsizetype>(tag.size(), ChildEnding));
    const themefiles::SectionReader owner(parent, state.paths.ThemeFile);
    const TrialValues* const tried = valuesOf(parent, trial);
    const auto measure = [&](const MarkKey& key) {
      const QString* const value = tried ? tried->find(key.key.toString()) : nullptr;
      return measureOf(key, value ? *value : owner.Value(key.key.toString()));
    };
    x += measure(MarkX);
    y += measure(MarkY);
  }
  setMeasuringFont(record, workspace);
  mark.SetWidth(0);
  mark.SetHeight(workspace.TextHeight(record.Text) * LineHeightFactor);
  mark.SetLeft(x);
  mark.SetTop(y);
  showMark(mark);
}

}  // namespace

void placeCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                 CursorMark& mark, const std::vector<TrialValues>& trial) {
  const themefiles::CursorRecord& record = state.CursorRect;
  const auto isGiven = [&](const Side& side) { return !(record.*side.key.measure).isEmpty(); };
  if (std::all_of(Sides.begin(), Sides.end(), isGiven)) {
    drawFrame(record, mark);
  } else if (record.X.isEmpty() || record.Y.isEmpty() || !record.W.isEmpty() || !record.H.isEmpty()) {
    mark.setBlinking(false);
    mark.SetVisible(false);
  } else {
    drawTextLine(state, tags, workspace, mark, trial);
  }
}

void DrawCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                CursorMark& mark, platform::StatusLine& status, const std::vector<TrialValues>& trial) {
  platform::guarded(status, CursorStep.toString(), [&] { placeCursor(state, tags, workspace, mark, trial); });
}

}  // namespace renderer
