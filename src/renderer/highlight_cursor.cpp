#include "renderer/highlight_cursor.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"

namespace renderer {
namespace {

/// The length of "TEXT1", which a child text's name has after its button's name.
constexpr int ChildEnding = 5;
constexpr double LineHeightFactor = 1.5;

/// The number of a key's text. Throws Failure if it is infinite or below `least`.
double measureOf(QStringView key, const QString& text, double least) {
  const double number = platform::numberOf(text);
  if (!std::isfinite(number) || number < least) throw platform::Failure(QStringLiteral("%1 is %2").arg(key, text));
  return number;
}

double placeOf(QStringView key, const QString& text) {
  return measureOf(key, text, std::numeric_limits<double>::lowest());
}

void showMark(CursorMark& mark) {
  mark.setBlinking(true);
  mark.SetVisible(true);
}

void drawFrame(const themefiles::CursorRecord& record, CursorMark& mark) {
  mark.SetLeft(placeOf(u"X", record.X));
  mark.SetTop(placeOf(u"Y", record.Y));
  mark.SetWidth(measureOf(u"W", record.W, 0));
  mark.SetHeight(measureOf(u"H", record.H, 0));
  showMark(mark);
}

/// Sets the font for measuring. It isn't the font that the renderer draws with.
void setMeasuringFont(const themefiles::CursorRecord& record, drawing::Surface& workspace) {
  if (record.Font == 0) workspace.SetFontName(QStringLiteral("Courier New"));
  if (record.Font == 1) workspace.SetFontName(QStringLiteral("Arial Black"));
  workspace.SetFontSize(record.Size);
}

void drawTextLine(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                  CursorMark& mark) {
  const themefiles::CursorRecord& record = state.CursorRect;
  double x = placeOf(u"X", record.X);
  double y = placeOf(u"Y", record.Y);
  const QString tag = tags.ListIndex() < 0 ? QString() : tags.List(tags.ListIndex());
  const QString upper = platform::upperCase(tag);
  if (upper.contains(u"BUTTON") || upper.contains(u"NAME")) {
    const QString parent = tag.chopped(std::min<qsizetype>(tag.size(), ChildEnding));
    const themefiles::SectionReader owner(parent, state.paths.ThemeFile);
    x += placeOf(u"X", owner.Value(QStringLiteral("X")));
    y += placeOf(u"Y", owner.Value(QStringLiteral("Y")));
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
                 CursorMark& mark) {
  const themefiles::CursorRecord& record = state.CursorRect;
  if (!record.X.isEmpty() && !record.Y.isEmpty() && !record.W.isEmpty() && !record.H.isEmpty()) {
    drawFrame(record, mark);
  } else if (record.X.isEmpty() || record.Y.isEmpty() || !record.W.isEmpty() || !record.H.isEmpty()) {
    mark.setBlinking(false);
    mark.SetVisible(false);
  } else {
    drawTextLine(state, tags, workspace, mark);
  }
}

void DrawCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                CursorMark& mark, platform::StatusLine& status) {
  platform::guarded(status, CursorStep.toString(), [&] { placeCursor(state, tags, workspace, mark); });
}

}  // namespace renderer
