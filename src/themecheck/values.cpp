#include <algorithm>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themecheck/checked_theme.h"

namespace themecheck {
namespace {

using themefiles::EditorFrame;
using themefiles::GroupRow;
using themefiles::KeyGroup;

/// Whether the value is what an entry of a fixed list stands for; words in any case, numbers as numbers.
bool isInList(const GroupRow& group, const QString& value) {
  return std::any_of(group.entries.begin(), group.entries.end(), [&](QStringView entry) {
    const QString listed = platform::trimBlanks(entry.toString().section(u'=', 0, 0));
    return group.group == KeyGroup::Type ? platform::sameName(listed, value)
                                         : platform::numberOf(listed) == platform::numberOf(value);
  });
}

void checkValue(const IniKey& key, const Place& place, Findings& findings) {
  const auto group = themefiles::groupOf(themefiles::keyIdentity(key.name));
  if (!group) {
    findings.add(Kind::NoEditor, place);
    return;
  }
  const GroupRow& row = themefiles::rowOf(*group);
  const bool isList = row.frame == EditorFrame::Selection;
  const bool isNumeric = row.frame == EditorFrame::Numbers || row.frame == EditorFrame::FloatNumbers ||
                         (isList && *group != KeyGroup::Type);
  if (isNumeric && !platform::isNumber(key.value)) {
    findings.add(Kind::NoNumber, place, {key.value});
  } else if (isList && !isInList(row, key.value)) {
    findings.add(Kind::OutsideList, place, {key.value});
  }
}

}  // namespace

void checkValues(const CheckedTheme& theme, Findings& findings) {
  for (const IniSection* object : objectsOf(theme.theme)) {
    for (const IniKey& key : object->keys) {
      if (key.line == key.counted) checkValue(key, theme.theme.place(object->name, key.name), findings);
    }
  }
}

}  // namespace themecheck
