#include "themefiles/tag_listing.h"

#include <algorithm>
#include <iterator>

#include <QScopeGuard>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/text_lines.h"
#include "themefiles/screen_table.h"

namespace themefiles {
namespace {

/// Whether `fits` is true for an item of the list and the tag, both in upper case. Commas separate the items.
template <typename Fits>
bool anyItem(const QString& list, const QString& tag, Fits fits) {
  const QStringList items = platform::upperCase(list).split(u',');
  const QString upperTag = platform::upperCase(tag);
  return std::any_of(items.begin(), items.end(), [&](const QString& item) { return fits(item, upperTag); });
}

bool equals(const QString& item, const QString& tag) {
  return item == tag;
}

bool occursIn(const QString& item, const QString& tag) {
  return tag.contains(item);
}

/// Whether the line ends the run of `stem`: it is the section whose whole name is the stem of another screen.
bool endsRun(const ModuleState& state, const QString& stem, const QString& line) {
  if (!line.endsWith(u']')) return false;
  const QStringView name = QStringView(line).sliced(1).chopped(1);
  return std::any_of(state.ScreenTable.begin(), state.ScreenTable.end(),
                     [&](const ScreenRow& row) { return row.Stem != stem && row.Stem == name; });
}

/// Calls `add` with each tag of the screen's run that passes the filter. `next` returns the theme's lines one by one;
/// it may skip those that don't start with "[".
template <typename Next, typename Add>
void listTags(const ModuleState& state, const TagFilter& filter, const QString& screenName, Next next, Add add) {
  const QString stem = stemOf(state, screenName);
  const QString head = u'[' + platform::upperCase(stem);
  bool found = false;
  while (const std::optional<QByteArrayView> bytes = next()) {
    if (!bytes->startsWith('[')) continue;
    if (found && endsRun(state, stem, platform::fromAnsi(*bytes))) break;
    // Only the start of a line is converted, which rules out most lines of a large theme. Each byte is one letter.
    const QByteArrayView first = bytes->first(std::min(bytes->size(), head.size()));
    if (platform::upperCase(platform::fromAnsi(first)) != head) continue;
    const QString line = platform::fromAnsi(*bytes);
    const QString tag = line.mid(1, line.size() - 2);
    if (SplitTags(filter, tag)) continue;
    add(tag);
    found = true;
  }
}

}  // namespace

void SortedTags::Clear() {
  tags_.clear();
  index_ = -1;
}

void SortedTags::AddItem(const QString& tag) {
  tags_.insert(std::upper_bound(tags_.begin(), tags_.end(), tag, platform::nameLess), tag);
}

bool SplitTags(const TagFilter& filter, const QString& Tag) {
  if (!filter.SkipTags.isEmpty() && anyItem(filter.SkipTags, Tag, equals)) return true;
  if (!filter.SkipTagParts.isEmpty() && anyItem(filter.SkipTagParts, Tag, occursIn)) return true;
  bool leftOut = false;
  if (!filter.OnlyTags.isEmpty()) {
    leftOut = true;
    if (anyItem(filter.OnlyTags, Tag, equals)) return false;
  }
  if (!filter.OnlyTagParts.isEmpty() && anyItem(filter.OnlyTagParts, Tag, occursIn)) return false;
  return leftOut;
}

ScreenTags::ScreenTags(const platform::IniText& theme) {
  std::copy_if(theme.lines().begin(), theme.lines().end(), std::back_inserter(heads_),
               [](QByteArrayView line) { return line.startsWith('['); });
}

QStringList ScreenTags::of(const ModuleState& state, const QString& screenName) const {
  SortedTags tags;
  auto head = heads_.begin();
  listTags(
      state, filterOf(screenName), screenName,
      [&] { return head == heads_.end() ? std::nullopt : std::optional(*head++); },
      [&](const QString& tag) { tags.AddItem(tag); });
  return tags.rows();
}

int ReadTags(const ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
             const std::function<void()>& DoEvents) {
  const bool read = platform::guarded(status, QStringLiteral("Error while reading Tags"), [&] {
    const QByteArray file = platform::readFile(state.paths.ThemeFile);
    platform::TextLines lines(file);
    listTags(
        state, state.Filter, screenName, [&] { return lines.next(); },
        [&](const QString& tag) {
          tags.AddItem(tag);
          DoEvents();
        });
  });
  if (!read || tags.ListCount() == 0) return -1;
  const int picked = tags.ListIndex();
  tags.SetListIndex(0);
  return picked;
}

int listScreenTags(ModuleState& state, const QString& screenName, TagList& tags, platform::StatusLine& status,
                   const std::function<void()>& DoEvents) {
  state.Filter = filterOf(screenName);
  const auto clearFilter = qScopeGuard([&] { state.Filter = {}; });
  return ReadTags(state, screenName, tags, status, DoEvents);
}

}  // namespace themefiles
