#pragma once

#include <functional>
#include <vector>

#include <QByteArrayView>
#include <QStringList>

#include "platform/ini_text.h"
#include "platform/status_line.h"
#include "themefiles/module_state.h"

/// Lists the tags of a screen: the names of its sections.
namespace themefiles {

/// The list of a screen's tags with one selected row: the tool window's List1, or SortedTags without a window. The rows
/// are sorted by platform::nameLess. That is also the order of drawing.
class TagList {
 public:
  virtual ~TagList() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const QString& tag) = 0;
  virtual int ListCount() const = 0;
  virtual QString List(int row) const = 0;
  virtual int ListIndex() const = 0;
  /// Selects a row and raises Click. A list in a window throws platform::Failure for a row that doesn't exist.
  virtual void SetListIndex(int row) = 0;
};

/// A list of tags without a window. It raises no Click.
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

/// Lists the tags of the screen's run that pass the state's filter, from the theme's working copy, and selects the
/// first row. Calls `DoEvents` after each tag. Returns the row that was selected during those calls, or -1. A failure
/// is reported; the tags listed so far stay.
int ReadTags(const ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
             const std::function<void()>& DoEvents);

/// ReadTags with the screen's own filter. The state has no filter before and after.
int listScreenTags(ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
                   const std::function<void()>& DoEvents);

/// The tags of any screen, as listScreenTags lists them. For many screens of one theme.
class ScreenTags {
 public:
  /// Refers to the text of `theme`.
  explicit ScreenTags(const platform::IniText& theme);
  QStringList of(const ModuleState& state, const QString& screenName) const;

 private:
  std::vector<QByteArrayView> heads_;  ///< the lines that start with "["
};

/// Whether the filter excludes the tag.
bool SplitTags(const TagFilter& filter, const QString& Tag);

}  // namespace themefiles
