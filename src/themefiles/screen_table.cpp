#include "themefiles/screen_table.h"

#include <algorithm>
#include <array>

#include <QStringView>

namespace themefiles {
namespace {

struct Screen {
  QStringView name;
  QStringView stem;
};

constexpr auto Screens = std::to_array<Screen>({
    {u"Loading Screen", u"Loading"},
    {u"Main Screen", u"Main"},
    {u"Song Screen (Single)", u"Song"},
    {u"Song Screen (Party)", u"Song"},
    {u"Sing Screen (1 Player)", u"Sing"},
    {u"Sing Screen (2 Player)", u"Sing"},
    {u"Sing Screen (3 Player)", u"Sing"},
    {u"Score Screen (1 Player)", u"Score"},
    {u"Score Screen (2 Player)", u"Score"},
    {u"Score Screen (3 Player)", u"Score"},
    {u"Options Screen", u"Options"},
    {u"Options Game Screen", u"OptionsGame"},
    {u"Options Graphics Screen", u"OptionsGraphics"},
    {u"Options Sound Screen", u"OptionsSound"},
    {u"Options Lyrics Screen", u"OptionsLyrics"},
    {u"Options Themes Screen", u"OptionsThemes"},
    {u"Options Record Screen", u"OptionsRecord"},
    {u"Options Advanced Screen", u"OptionsAdvanced"},
    {u"Top5 Screen", u"Top5"},
    {u"Level Screen", u"Level"},
    {u"Name Screen", u"Name"},
    {u"Party New Round Screen", u"PartyNewRound"},
    {u"Party Score Screen", u"PartyScore"},
    {u"Party Win Screen", u"PartyWin"},
    {u"Party Options Screen", u"PartyOptions"},
    {u"Party Player Screen", u"PartyPlayer"},
    {u"Song Menu", u"SongMenu"},
    {u"Song Jumpto", u"SongJumpto"},
    {u"Stats Main", u"StatMain"},
    {u"Stats Detail", u"StatDetail"},
    {u"Check Popup", u"CheckPopup"},
    {u"Error Popup", u"ErrorPopup"},
});
static_assert(Screens.size() == std::tuple_size_v<decltype(ModuleState::ScreenTable)>);

/// The filter of a screen. A score screen has `otherPlayers` instead of lists: the digits of the players that it
/// doesn't show. They are put into the two score templates.
struct ScreenFilter {
  QStringView screen;
  QStringView skipTagParts;
  QStringView onlyTags;
  QStringView onlyTagParts;
  QStringView otherPlayers;
};

constexpr auto Filters = std::to_array<ScreenFilter>({
    {u"Song Screen (Single)", u"SongStaticParty,SongTextParty,SongStaticTeam", {}, {}, {}},
    {u"Song Screen (Party)", u"SongStaticNonParty,SongTextNonParty", {}, {}, {}},
    {u"Score Screen (1 Player)", {}, {}, {}, u"23456"},
    {u"Score Screen (2 Player)", {}, {}, {}, u"1456"},
    {u"Score Screen (3 Player)", {}, {}, {}, u"123"},
    {u"Sing Screen (1 Player)",
     {},
     u"Sing,SingTimeProgress,SingTimeText,SingP1SingBar",
     u"SingText,SingStatic,SingP1Static,SingP1Text",
     {}},
    {u"Sing Screen (2 Player)",
     {},
     u"Sing,SingTimeProgress,SingTimeText,SingP1TwoPSingBar,SingP2RSingBar",
     u"SingText,SingStatic,SingP1TwoPStatic,SingP1TwoPText,SingP2RStatic,SingP2RText",
     {}},
    {u"Sing Screen (3 Player)",
     {},
     u"Sing,SingTimeProgress,SingTimeText,SingP1ThreePSingBar,SingP2MSingBar,SingP3SingBar",
     u"SingText,SingStatic,SingP1ThreePStatic,SingP1ThreePText,SingP2MStatic,SingP2MText,SingP3RStatic,SingP3RText",
     {}},
});

// The score templates. "#" stands for a player's digit.
constexpr QStringView ScoreTagList =
    u"ScoreTextName#,ScoreTextScore#,ScoreTextNotes#,ScoreTextNotesScore#,ScoreTextLineBonus#,ScoreTextLineBonusScore#,"
    u"ScoreTextGoldenNotes#,ScoreTextGoldenNotesScore#,ScoreTextTotal#,ScoreTextTotalSCore#,ScoreStaticBoxDark#,"
    u"ScoreStaticBackLevel#,ScoreStaticBackLevelRound#,ScoreStaticLevel#,ScoreStaticLevelRound#,ScoreStaticBoxLight#,"
    u"ScoreStaticBoxLightest#,";
constexpr QStringView ScorePlayerParts = u"ScorePlayer#Text,ScorePlayer#Static,";

/// The template once for each digit.
QString forDigits(QStringView digits, QStringView pattern) {
  QString list;
  for (const QChar digit : digits) list += pattern.toString().replace(u'#', digit);
  return list;
}

}  // namespace

void InitScreenTable(ModuleState& state) {
  std::transform(Screens.begin(), Screens.end(), state.ScreenTable.begin(), [](const Screen& screen) {
    return ScreenRow{screen.name.toString(), screen.stem.toString()};
  });
}

QString stemOf(const ModuleState& state, const QString& name) {
  const auto row = std::find_if(state.ScreenTable.begin(), state.ScreenTable.end(),
                                [&](const ScreenRow& screen) { return screen.Name == name; });
  return row == state.ScreenTable.end() ? name : row->Stem;
}

TagFilter filterOf(const QString& screenName) {
  const auto filter =
      std::find_if(Filters.begin(), Filters.end(), [&](const ScreenFilter& row) { return row.screen == screenName; });
  if (filter == Filters.end()) return {};
  TagFilter lists{{}, filter->skipTagParts.toString(), filter->onlyTags.toString(), filter->onlyTagParts.toString()};
  if (!filter->otherPlayers.isEmpty()) {
    lists.SkipTags = forDigits(filter->otherPlayers, ScoreTagList);
    lists.SkipTagParts = forDigits(filter->otherPlayers, ScorePlayerParts).chopped(1);
  }
  return lists;
}

}  // namespace themefiles
