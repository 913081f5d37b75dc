#pragma once

#include <functional>
#include <vector>

#include <QByteArrayView>
#include <QStringList>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

/// Listing the sections of a screen, its tags.
namespace themefiles {

/// The list of a screen's tags, with one selected row: the tool window's List1, or a plain list where there is no
/// window. It keeps its rows sorted in the order of platform::nameLess, which is the order of painting.
class TagList {
 public:
  virtual ~TagList() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const QString& tag) = 0;
  virtual int ListCount() const = 0;
  virtual QString List(int row) const = 0;
  virtual int ListIndex() const = 0;
  /// Selects the row, which fires its Click. A list in a window throws platform::Failure for a row outside it.
  virtual void SetListIndex(int row) = 0;
};

/// A list of tags without a window; its Click has no listener.
class SortedTags : public TagList {
 public:
  void Clear() override;
  void AddItem(const QString& tag) override;
  int ListCount() const override { return static_cast<int>(tags_.size()); }
  QString List(int row) const override { return tags_[row]; }
  int ListIndex() const override { return index_; }
  void SetListIndex(int row) override { index_ = row; }
  const QStringList& rows() const { return tags_; }

 private:
  QStringList tags_;
  int index_ = -1;
};

/// Fills `tags` with the section names of the screen's run in the theme's working copy that the state's filter lets
/// through, and selects the first row. `DoEvents` is called behind each tag; gives the row that was selected by what
/// happened in it, -1 without one. Failures are reported, what was listed by then stays.
int ReadTags(const ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
             const std::function<void()>& DoEvents);

/// ReadTags with the filter that the screen asks for; the state has none before and after.
int listScreenTags(ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
                   const std::function<void()>& DoEvents);

/// What ReadTags lists of each screen under the screen's own filter, for who asks for many screens.
class ScreenTags {
 public:
  /// Of a theme's bytes, which have to stay.
  explicit ScreenTags(QByteArrayView theme);
  QStringList of(const ModuleState& state, const QString& screenName) const;

 private:
  std::vector<QByteArrayView> heads_;  ///< the lines that start with "["
};

/// Whether the filter leaves the tag out.
bool SplitTags(const TagFilter& filter, const QString& Tag);

}  // namespace themefiles
