#pragma once

#include "themefiles/tag_listing.h"

namespace controls {
class ListBox;
}

namespace toolwindow {

/// A list box as a list of tags.
class ListedTags : public themefiles::TagList {
 public:
  explicit ListedTags(controls::ListBox& list) : list_(list) {}

  void Clear() override;
  void AddItem(const QString& tag) override;
  int ListCount() const override;
  QString List(int row) const override;
  int ListIndex() const override;
  void SetListIndex(int row) override;

 private:
  controls::ListBox& list_;
};

}  // namespace toolwindow
