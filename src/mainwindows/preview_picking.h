#pragma once

#include <QPoint>

#include "renderer/render_account.h"
#include "themefiles/tag_listing.h"

namespace mainwindows {

/// Finds the object under the mouse from the renderer's account of what it drew.
class PreviewPicking {
 public:
  /// Row of the tag list for the topmost object at a place (pixels of the surface). A further click at the same place
  /// gives the next object below, and after the lowest the topmost again. A child text that isn't in the list counts as
  /// its button. -1 where only the background was drawn.
  int rowAt(const QPoint& place, const renderer::RenderAccount& account, const themefiles::TagList& tags);

  /// What a click picks: a row, -1 for none, and how many objects lie below.
  struct Next {
    int row;
    int below;
  };
  /// What rowAt would give next at the place.
  Next nextAt(const QPoint& place, const renderer::RenderAccount& account, const themefiles::TagList& tags) const;

  /// Row of the topmost object at a place that isn't the one named; -1 without one.
  static int topmostBut(const QString& name, const QPoint& place, const renderer::RenderAccount& account,
                        const themefiles::TagList& tags);

 private:
  QPoint place_;
  std::vector<int> rows_;  ///< of the objects at the place, topmost first
  size_t next_ = 0;
};

}  // namespace mainwindows
