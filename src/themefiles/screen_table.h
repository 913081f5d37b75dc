#pragma once

#include <functional>

#include <QString>

#include "platform/status_line.h"
#include "themefiles/module_state.h"

namespace themefiles {

/// The list of a screen's tags, with one selected row: the tool window's List1, or a plain list where there is no
/// window. It keeps its rows sorted in the order of platform::NameLess, which is the order of painting.
class TagList {
 public:
  virtual ~TagList() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const QString& tag) = 0;
  virtual int ListCount() const = 0;
  virtual QString List(int row) const = 0;
  virtual int ListIndex() const = 0;
  /// Selects the row, which fires its Click.
  virtual void SetListIndex(int row) = 0;
};

/// Fills the 32 rows.
void InitScreenTable(ModuleState& state);

/// The stem of the screen shown as `name`; the name itself when no row has it.
QString StemOf(const ModuleState& state, const QString& name);

/// The filter that a screen asks for; empty for most.
TagFilter FilterOf(const QString& screenName);

/// Fills `tags` with the section names of the screen's run in the theme's working copy that the state's filter lets
/// through, and selects the first row. `DoEvents` is called behind each tag; gives the row that was selected by what
/// happened in it, -1 without one. Failures are reported, what was listed by then stays.
int ReadTags(const ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
             const std::function<void()>& DoEvents);

/// Whether the filter leaves the tag out.
bool SplitTags(const TagFilter& filter, const QString& Tag);

}  // namespace themefiles
