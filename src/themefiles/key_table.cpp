#include "themefiles/key_table.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/row_order.h"

namespace themefiles {
namespace {

struct KeyRow {
  QStringView key;
  KeyGroup group;
};

constexpr auto Keys = std::to_array<KeyRow>({
    {u"X", KeyGroup::WholeNumber},
    {u"Y", KeyGroup::WholeNumber},
    {u"SIZE", KeyGroup::WholeNumber},
    {u"W", KeyGroup::WholeNumber},
    {u"H", KeyGroup::WholeNumber},
    {u"PIECEW", KeyGroup::WholeNumber},
    {u"PIECEH", KeyGroup::WholeNumber},
    {u"SPACE", KeyGroup::WholeNumber},
    {u"BANDS", KeyGroup::WholeNumber},
    {u"LENGTH", KeyGroup::WholeNumber},
    {u"REFLECTIONSPACING", KeyGroup::WholeNumber},
    {u"DESELECTREFLECTIONSPACING", KeyGroup::WholeNumber},
    {u"SELECTH", KeyGroup::WholeNumber},
    {u"SELECTW", KeyGroup::WholeNumber},
    {u"FADETEXPOS", KeyGroup::WholeNumber},
    {u"FIRSTCHILD", KeyGroup::WholeNumber},
    {u"TEXTS", KeyGroup::WholeNumber},
    {u"PARENT", KeyGroup::WholeNumber},
    {u"STYLE", KeyGroup::WholeNumber},
    {u"STATICS", KeyGroup::WholeNumber},
    {u"SKIPX", KeyGroup::WholeNumber},
    {u"ALIGN", KeyGroup::Alignment},
    {u"FONT", KeyGroup::Font},
    {u"VISIBLE", KeyGroup::Switch},
    {u"REFLECTION", KeyGroup::Switch},
    {u"FADE", KeyGroup::Switch},
    {u"FADETEXT", KeyGroup::Switch},
    {u"REFLECTIONS", KeyGroup::Switch},
    {u"DIRECTION", KeyGroup::Direction},
    {u"TYPE", KeyGroup::Type},
    {u"TEXT", KeyGroup::Text},
    {u"COLOR", KeyGroup::Color},
    {u"DCOLOR", KeyGroup::Color},
    {u"TCOLOR", KeyGroup::Color},
    {u"TDCOLOR", KeyGroup::Color},
    {u"SBGCOLOR", KeyGroup::Color},
    {u"SBGDCOLOR", KeyGroup::Color},
    {u"STCOLOR", KeyGroup::Color},
    {u"STDCOLOR", KeyGroup::Color},
    {u"TEX", KeyGroup::Texture},
    {u"FADETEX", KeyGroup::Texture},
    {u"SBGTEX", KeyGroup::Texture},
    {u"TEXSBG", KeyGroup::Texture},
    {u"Z", KeyGroup::Decimal},
    {u"TEXX1", KeyGroup::Decimal},
    {u"TEXY1", KeyGroup::Decimal},
    {u"TEXX2", KeyGroup::Decimal},
    {u"TEXY2", KeyGroup::Decimal},
    {u"INT", KeyGroup::Decimal},
    {u"DINT", KeyGroup::Decimal},
});
static_assert(Keys.size() == 50, "a key was added or lost");

constexpr auto AlignEntries = std::to_array<QStringView>({u"0 = Left", u"1 = Middle", u"2 = Right"});
constexpr auto FontEntries =
    std::to_array<QStringView>({u"0 = Normal", u"1 = Bold", u"2 = Bold with Outline", u"3 = Bold with dark Outline"});
constexpr auto SwitchEntries = std::to_array<QStringView>({u"0 = False", u"1 = True"});
constexpr auto DirectionEntries = std::to_array<QStringView>({u"0 = Left to Right", u"1 = Bottom to Top"});
constexpr auto TypeEntries = std::to_array<QStringView>({u"Plain", u"Transparent", u"Colorized", u"Font Black"});

constexpr auto Groups = std::to_array<GroupRow>({
    {KeyGroup::WholeNumber, EditorFrame::Numbers, {}},
    {KeyGroup::Alignment, EditorFrame::Selection, AlignEntries},
    {KeyGroup::Font, EditorFrame::Selection, FontEntries},
    {KeyGroup::Switch, EditorFrame::Selection, SwitchEntries},
    {KeyGroup::Direction, EditorFrame::Selection, DirectionEntries},
    {KeyGroup::Type, EditorFrame::Selection, TypeEntries},
    {KeyGroup::Text, EditorFrame::Texts, {}},
    {KeyGroup::Color, EditorFrame::Color, {}},
    {KeyGroup::Texture, EditorFrame::Texture, {}},
    {KeyGroup::Decimal, EditorFrame::FloatNumbers, {}},
});
static_assert(platform::inOrder(Groups, &GroupRow::group, KeyGroup::Decimal));

}  // namespace

QString keyIdentity(const QString& key) {
  return platform::upperCase(platform::trimBlanks(key));
}

std::optional<KeyGroup> groupOf(QStringView key) {
  const auto row = std::find_if(Keys.begin(), Keys.end(), [&](const KeyRow& known) { return known.key == key; });
  if (row == Keys.end()) return std::nullopt;
  return row->group;
}

const GroupRow& rowOf(KeyGroup group) {
  return Groups.at(static_cast<size_t>(group));
}

}  // namespace themefiles
