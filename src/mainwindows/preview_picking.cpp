#include "mainwindows/preview_picking.h"

#include <algorithm>

#include "platform/code_page.h"

namespace mainwindows {
namespace {

/// Clicks that are at most so many pixels apart are at the same place.
constexpr int SamePlace = 2;

int rowNamed(const themefiles::TagList& tags, const QString& name) {
  for (int row = 0; row < tags.ListCount(); ++row) {
    if (platform::sameName(tags.List(row), name)) return row;
  }
  return -1;
}

/// Rows of the objects at the place, topmost first, each once.
std::vector<int> rowsAt(const QPoint& place, const renderer::RenderAccount& account, const themefiles::TagList& tags) {
  std::vector<int> rows;
  for (auto object = account.objects.rbegin(); object != account.objects.rend(); ++object) {
    if (!object->place.contains(place)) continue;
    int row = rowNamed(tags, object->section);
    if (row < 0) row = rowNamed(tags, object->owner);
    if (row >= 0 && std::find(rows.begin(), rows.end(), row) == rows.end()) rows.push_back(row);
  }
  return rows;
}

}  // namespace

int PreviewPicking::rowAt(const QPoint& place, const renderer::RenderAccount& account,
                          const themefiles::TagList& tags) {
  const bool further = (place - place_).manhattanLength() <= SamePlace;
  std::vector<int> rows = rowsAt(further ? place_ : place, account, tags);
  if (!further || rows != rows_) {
    place_ = place;
    rows_ = rowsAt(place, account, tags);
    next_ = 0;
  }
  if (rows_.empty()) return -1;
  const int row = rows_[next_];
  next_ = (next_ + 1) % rows_.size();
  return row;
}

int PreviewPicking::topmostBut(const QString& name, const QPoint& place, const renderer::RenderAccount& account,
                               const themefiles::TagList& tags) {
  for (const int row : rowsAt(place, account, tags)) {
    if (tags.List(row) != name) return row;
  }
  return -1;
}

PreviewPicking::Next PreviewPicking::nextAt(const QPoint& place, const renderer::RenderAccount& account,
                                            const themefiles::TagList& tags) const {
  PreviewPicking tried = *this;
  const int row = tried.rowAt(place, account, tags);
  return {row, tried.next_ == 0 ? 0 : static_cast<int>(tried.rows_.size() - tried.next_)};
}

}  // namespace mainwindows
