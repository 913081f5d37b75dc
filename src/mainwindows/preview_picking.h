#pragma once

#include <QPoint>

#include "renderer/render_account.h"
#include "themefiles/tag_listing.h"

namespace mainwindows {

/// Finds the object under the mouse from the renderer's account of what it drew.
class PreviewPicking {
 public:
  /// Row of the tag list for the topmost object at the place (pixels of the surface); at a further click on the same
  /// place the next one below, and behind the lowest the topmost again. A child text that isn't in the list stands for
  /// its button. -1 where nothing was drawn but the background.
  int rowAt(const QPoint& place, const renderer::RenderAccount& account, const themefiles::TagList& tags);

 private:
  QPoint place_;
  std::vector<int> rows_;  ///< of the objects at the place, topmost first
  size_t next_ = 0;
};

}  // namespace mainwindows
