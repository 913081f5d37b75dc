#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themecheck/checked_theme.h"

namespace themecheck {
namespace {

using themefiles::EditorFrame;
using themefiles::GroupRow;
using themefiles::KeyGroup;

/// The colour of a text that names none.
constexpr auto ChannelsOfTexts = std::to_array<QStringView>({u"COLR", u"COLG", u"COLB"});

/// Whether the value is what an entry of a fixed list stands for; words in any case, numbers as numbers.
bool isInList(const GroupRow& group, const QString& value) {
  return std::any_of(group.entries.begin(), group.entries.end(), [&](QStringView entry) {
    const QString listed = platform::trimBlanks(entry.toString().section(u'=', 0, 0));
    return group.group == KeyGroup::Type ? platform::sameName(listed, value)
                                         : platform::numberOf(listed) == platform::numberOf(value);
  });
}

void checkValue(const IniFile& theme, const IniSection& object, const IniKey& key, Findings& findings) {
  const QString identity = themefiles::keyIdentity(key.name);
  const auto group = themefiles::groupOf(identity);
  if (identity.startsWith(u'#')) return;  // the tool window takes the line for a comment
  if (!group) {
    const bool isRead = std::find(ChannelsOfTexts.begin(), ChannelsOfTexts.end(), identity) != ChannelsOfTexts.end() &&
                        platform::upperCase(object.name).contains(u"TEXT");
    if (!isRead) findings.add(Kind::NoEditor, theme.placeOf(object, key));
    return;
  }
  const GroupRow& row = themefiles::rowOf(*group);
  const bool isList = row.frame == EditorFrame::Selection;
  const bool isNumeric = row.frame == EditorFrame::Numbers || row.frame == EditorFrame::FloatNumbers ||
                         (isList && *group != KeyGroup::Type);
  const Place place = theme.valueOf(object.name, key.name);
  if (isNumeric && !platform::isNumber(key.value)) {
    findings.add(Kind::NoNumber, place, {key.value});
  } else if (isList && !isInList(row, key.value)) {
    findings.add(Kind::OutsideList, place, {key.value});
  }
}

}  // namespace

void checkValues(const CheckedTheme& theme, Findings& findings) {
  for (const IniSection* object : objectsOf(theme.theme())) {
    for (const IniKey& key : object->keys) {
      if (key.line != key.counted || findings.isTold(object->name, key.name)) continue;
      checkValue(theme.theme(), *object, key, findings);
    }
  }
}

}  // namespace themecheck
