#include "toolwindow/listed_tags.h"

#include "controls/list_box.h"

namespace toolwindow {

void ListedTags::Clear() {
  list_.Clear();
}

void ListedTags::AddItem(const QString& tag) {
  list_.AddItem(tag);
}

int ListedTags::ListCount() const {
  return list_.ListCount();
}

QString ListedTags::List(int row) const {
  return list_.List(row);
}

int ListedTags::ListIndex() const {
  return list_.ListIndex();
}

void ListedTags::SetListIndex(int row) {
  list_.SetListIndex(row);
}

}  // namespace toolwindow
